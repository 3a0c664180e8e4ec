// SPDX-License-Identifier: MIT
// One process's line in /proc/PID/stat (proc_pid_stat(5)): its name, its parent, when it started.
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace zephrine {

struct ProcPidStat {
    std::string_view comm;     ///< field 2 without its parentheses; any bytes; points into the text
    std::uint64_t parent = 0;  ///< field 4; 0 for a process without one
    std::uint64_t startTime = 0;  ///< field 22, clock ticks since boot
};

/// Absent when the line is cut off before the start time, or is no such line.
std::optional<ProcPidStat> parseProcPidStat(std::string_view text);

}  // namespace zephrine
