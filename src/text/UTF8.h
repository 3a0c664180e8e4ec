// SPDX-License-Identifier: MIT
// Makes bytes from other programs safe to show as UTF-8.
#pragma once

#include <string>
#include <string_view>

namespace zephrine {

/// `bytes` with every invalid sequence replaced by U+FFFD, one for each maximal part of a sequence
/// that begins well (Unicode, section 3.9, "U+FFFD Substitution of Maximal Subparts").
std::string repairedUTF8(std::string_view bytes);

}  // namespace zephrine
