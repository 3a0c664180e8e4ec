// SPDX-License-Identifier: MIT
// The options of the command line that ask something of the running program. A start that finds
// the program running already hands them over to it.
#pragma once

#include <algorithm>
#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace zephrine {

enum class LaunchOption { enableLogin, showDashboard, showSettings, inspect };

struct LaunchOptionWord {
    LaunchOption option;
    std::string_view word;
};

/// In the order in which they are acted on, which is that of the enumeration.
inline constexpr std::array<LaunchOptionWord, 4> launchOptionWords{{
    {LaunchOption::enableLogin, "--enable-login"},
    {LaunchOption::showDashboard, "--show-dashboard"},
    {LaunchOption::showSettings, "--show-settings"},
    {LaunchOption::inspect, "--inspect"},
}};

inline std::string_view wordOf(LaunchOption option) {
    return launchOptionWords.at(static_cast<std::size_t>(option)).word;
}

/// Absent for every other word.
inline std::optional<LaunchOption> launchOptionOf(std::string_view word) {
    const auto* const known =
        std::find_if(launchOptionWords.begin(), launchOptionWords.end(),
                     [word](const LaunchOptionWord& entry) { return entry.word == word; });
    return known == launchOptionWords.end() ? std::nullopt : std::optional(known->option);
}

/// Those that are among `arguments`, each once and in their order.
inline std::vector<LaunchOption> launchOptionsAmong(const std::vector<std::string>& arguments) {
    std::vector<LaunchOption> present;
    for (const auto& [option, word] : launchOptionWords) {
        if (std::find(arguments.begin(), arguments.end(), word) != arguments.end()) {
            present.push_back(option);
        }
    }
    return present;
}

}  // namespace zephrine
