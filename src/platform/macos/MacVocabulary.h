// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Vocabulary.h"

namespace zephrine {

inline constexpr Vocabulary macVocabulary{
    .machine = "Mac", .unavailable = "Not available on this Mac", .bar = "Menu bar"};

}  // namespace zephrine
