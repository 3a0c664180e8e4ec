// SPDX-License-Identifier: MIT
// Makes a text that may hold anything (a process chooses its own name) fit to be shown on one line
// among others.
#pragma once

#include <string>
#include <string_view>

namespace zephrine {

/// `text` on one line, in the order in which it is written: every control character and line or
/// paragraph separator is a space, and what would turn the order of others around is U+FFFD. Bytes
/// that are no UTF-8 stay as they are.
std::string singleLine(std::string_view text);

}  // namespace zephrine
