// SPDX-License-Identifier: MIT
// The last five minutes of readings, for the graph. Bounded by age and by count on every append.
#pragma once

#include <optional>
#include <vector>

namespace zephrine {

/// The span of the history and of the graph, in seconds.
inline constexpr double historySeconds = 300.0;

struct HistorySample {
    double time = 0;            ///< seconds of system uptime
    std::optional<double> cpu;  ///< percent; absent when the reading was
    std::optional<double> ram;  ///< percent of physical memory
    std::optional<double> gpu;  ///< percent
    bool operator==(const HistorySample&) const = default;
};

struct History {
    /// In the order of their appending: oldest first.
    std::vector<HistorySample> samples;

    /// Adds `sample`, then drops what is more than 300 seconds older than it, and the oldest ones
    /// beyond 601 (one every half second, both ends included).
    void append(const HistorySample& sample);
};

}  // namespace zephrine
