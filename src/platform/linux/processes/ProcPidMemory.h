// SPDX-License-Identifier: MIT
// How much memory a process keeps in use that no other could give back: its anonymous pages, from
// /proc/PID/statm while nothing was ever swapped out, else from /proc/PID/status.
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace zephrine {

/// resident − shared, the fields 2 and 3 of statm (proc_pid_statm(5)), in pages. The kernel sums
/// both from counters that lag a little, so shared may exceed resident: that is 0.
std::optional<std::uint64_t> anonymousPages(std::string_view statm);

/// RssAnon + VmSwap of status (proc_pid_status(5)), in bytes. Absent when RssAnon is missing: a
/// kernel before 4.5, a thread of the kernel, or a text that was cut off before it.
std::optional<std::uint64_t> anonymousAndSwappedBytes(std::string_view status);

/// Whether any swap area of /proc/swaps (proc_swaps(5)) holds something.
bool swapInUse(std::string_view swaps);

}  // namespace zephrine
