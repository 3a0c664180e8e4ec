// SPDX-License-Identifier: MIT
// The user's preferences in a JSON file of the user's own.
#pragma once

#include <string>

#include "platform/PreferenceStore.h"
#include "platform/linux/preferences/JSONFile.h"

namespace zephrine {

/// $XDG_CONFIG_HOME/zephrine/preferences.json, or its default place under the home; empty when
/// there is no home: then preferences last as long as the program runs.
std::string defaultPreferencePath();

class JSONPreferenceStore final : public PreferenceStore {
public:
    explicit JSONPreferenceStore(std::string path = defaultPreferencePath());

    [[nodiscard]] double doubleForKey(std::string_view key) const override;
    [[nodiscard]] bool boolForKey(std::string_view key) const override;
    void setDouble(double value, std::string_view key) override;
    void setInteger(std::int64_t value, std::string_view key) override;
    void setBool(bool value, std::string_view key) override;

private:
    mutable JSONFile file_;  // reading looks for changes made outside
};

}  // namespace zephrine
