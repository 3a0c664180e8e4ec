// SPDX-License-Identifier: MIT
// The user's defaults. They keep integers, floating-point numbers and flags apart, see changes
// made by others, and write themselves to disk.
#pragma once

#include "platform/PreferenceStore.h"

namespace zephrine {

class MacPreferenceStore final : public PreferenceStore {
public:
    [[nodiscard]] double doubleForKey(std::string_view key) const override;
    [[nodiscard]] bool boolForKey(std::string_view key) const override;
    void setDouble(double value, std::string_view key) override;
    void setInteger(std::int64_t value, std::string_view key) override;
    void setBool(bool value, std::string_view key) override;
};

}  // namespace zephrine
