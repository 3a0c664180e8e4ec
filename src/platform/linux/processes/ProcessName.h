// SPDX-License-Identifier: MIT
// The kernel keeps 15 bytes of a program's name; what was cut off is in the command line.
#pragma once

#include <cstddef>
#include <string_view>

namespace zephrine {

/// TASK_COMM_LEN of the kernel without its final zero.
inline constexpr std::size_t kLongestComm = 15;

/// `comm` or, where that was cut off at 15 bytes, the whole file name of the program out of
/// `cmdline` (/proc/PID/cmdline: arguments, each ended by a zero byte). A process can write
/// whatever it likes there: only what goes on from `comm` and can be a file name is believed.
/// The result points into one of the two.
std::string_view completedProcessName(std::string_view comm, std::string_view cmdline);

}  // namespace zephrine
