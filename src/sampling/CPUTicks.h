// SPDX-License-Identifier: MIT
// The machine's cumulative processor ticks, and the share of busy ones between two readings.
#pragma once

#include <cstdint>
#include <optional>

namespace zephrine {

/// Ticks since boot, all processors together. Each counter runs freely and wraps round at 2^32.
struct CPUTicks {
    std::uint32_t user = 0;
    std::uint32_t system = 0;
    std::uint32_t idle = 0;
    std::uint32_t nice = 0;

    /// The share of ticks that were not idle between the reading `since` and this newer one, in
    /// percent (0 to 100). Absent when no tick elapsed.
    [[nodiscard]] std::optional<double> usage(const CPUTicks& since) const;
};

}  // namespace zephrine
