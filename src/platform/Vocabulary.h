// SPDX-License-Identifier: MIT
// What this system's users call their machine and the bar that the item stands in.
#pragma once

#include <string_view>

namespace zephrine {

/// English words, UTF-8, that live as long as the program.
struct Vocabulary {
    std::string_view machine;  ///< after "Your": "Mac"
    std::string_view
        unavailable;       ///< for a figure that this machine does not give; fits 105 points
    std::string_view bar;  ///< at the start of a phrase: "Menu bar"
};

}  // namespace zephrine
