// SPDX-License-Identifier: MIT
// One capture of all readable processes, and the arithmetic that turns two captures into each
// process's CPU share. Captures travel between threads by value.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

#include "platform/ProcessTable.h"

namespace zephrine {

/// The raw reading of one process at one instant. `cpuTime` and `clock` are in the same unit.
struct ProcessReading {
    std::int32_t pid = 0;
    std::string name;             ///< UTF-8, but otherwise whatever the process calls itself
    std::uint64_t startTime = 0;  ///< tells a reused pid from the process seen before
    std::uint64_t cpuTime = 0;    ///< user and system time since the start
    std::uint64_t clock = 0;      ///< when the reading was taken
    std::uint64_t memory = 0;     ///< physical footprint in bytes
};

/// What one process used between two captures.
struct ProcessUsage {
    std::int32_t pid = 0;
    std::string name;
    std::optional<double> cpu;  ///< percent of the whole machine's capacity, 0 to 100
    std::uint64_t memory = 0;   ///< bytes
    bool operator==(const ProcessUsage&) const = default;
};

struct ProcessSnapshot {
    std::unordered_map<std::int32_t, ProcessReading> processes;  ///< by pid

    /// Reads every process that the user may inspect; an unreadable one is missing. Any thread.
    static ProcessSnapshot capture(ProcessTable& table);

    /// One row for each reading, in the map's order. `cpu` is absent where there is no earlier
    /// reading of the same process in `since`, a counter went back, no time passed between the
    /// two, or `cores` is below 1.
    [[nodiscard]] std::vector<ProcessUsage> usage(const std::optional<ProcessSnapshot>& since,
                                                  int cores) const;
};

}  // namespace zephrine
