// SPDX-License-Identifier: MIT
// The system's own formatters.
#pragma once

#include "platform/Formatting.h"

namespace zephrine {

class MacFormatting final : public Formatting {
public:
    [[nodiscard]] std::string stringFromByteCount(std::int64_t bytes) const override;
    [[nodiscard]] std::string localizedNumber(double value) const override;
};

}  // namespace zephrine
