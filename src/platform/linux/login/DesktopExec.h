// SPDX-License-Identifier: MIT
// Which program a desktop entry starts.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace zephrine {

/// The program of an "Exec" value: its first argument, unquoted. Absent when there is none or when
/// the quoting is wrong.
std::optional<std::string> programOfExec(std::string_view exec);

}  // namespace zephrine
