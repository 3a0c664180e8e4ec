// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Vocabulary.h"

namespace zephrine {

/// What is unavailable is said shortly: the fonts of these desktops are wider than a Mac's.
inline constexpr Vocabulary desktopVocabulary{
    .machine = "computer", .unavailable = "Not available here", .bar = "Panel"};

}  // namespace zephrine
