// SPDX-License-Identifier: MIT
// Byte counts and numbers as the user's locale writes them.
#pragma once

#include "platform/Formatting.h"
#include "platform/linux/formatting/NumberSymbols.h"

namespace zephrine {

class LinuxFormatting final : public Formatting {
public:
    explicit LinuxFormatting(NumberSymbols symbols = userNumberSymbols());

    [[nodiscard]] std::string stringFromByteCount(std::int64_t bytes) const override;
    [[nodiscard]] std::string localizedNumber(double value) const override;

private:
    NumberSymbols symbols_;
};

}  // namespace zephrine
