// SPDX-License-Identifier: MIT
// The two things that are asked about a panel's process.
#pragma once

#include <sys/types.h>

#include <optional>
#include <string>

namespace zephrine {

/// The command name, at most 15 bytes; empty when it cannot be read.
[[nodiscard]] std::string commandOf(pid_t pid);

[[nodiscard]] std::optional<pid_t> parentOf(pid_t pid);

}  // namespace zephrine
