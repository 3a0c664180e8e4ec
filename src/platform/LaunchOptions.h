// SPDX-License-Identifier: MIT
// The options of the command line that ask something of the running program. A start that finds
// the program running already hands them over to it.
#pragma once

#include <algorithm>
#include <array>
#include <iterator>
#include <string>
#include <string_view>
#include <vector>

namespace zephrine {

/// In the order in which they are acted on.
inline constexpr std::array<std::string_view, 4> launchOptions{"--enable-login", "--show-dashboard",
                                                               "--show-settings", "--inspect"};

/// Those of them that are among `arguments`, each once and in their order.
inline std::vector<std::string_view> launchOptionsAmong(const std::vector<std::string>& arguments) {
    std::vector<std::string_view> present;
    std::copy_if(launchOptions.begin(), launchOptions.end(), std::back_inserter(present),
                 [&arguments](std::string_view option) {
                     return std::find(arguments.begin(), arguments.end(), option) !=
                            arguments.end();
                 });
    return present;
}

}  // namespace zephrine
