// SPDX-License-Identifier: MIT
// Which program a desktop entry starts.
#pragma once

#include <optional>
#include <string>

namespace zephrine {

/// The program of an "Exec" value: its first argument, unquoted. Absent when there is none or when
/// the quoting is wrong.
std::optional<std::string> programOfExec(const std::string& exec);

}  // namespace zephrine
