// SPDX-License-Identifier: MIT
// Turns the kernel's 64-bit tick counts, some of which step back now and then, into counters that
// never do: a step back of 1 would otherwise read as 4294967295 ticks, nearly 500 days of work.
#pragma once

#include <cstdint>
#include <optional>

#include "platform/HostCounters.h"

namespace zephrine {

/// Ticks since boot, summed over all processors.
struct ProcessorTicks {
    std::uint64_t user = 0;
    std::uint64_t system = 0;
    std::uint64_t idle = 0;
    std::uint64_t nice = 0;
};

class TickAccumulator {
public:
    /// The counters to publish for a new reading. When any count fell, or rose by more than the
    /// published counters can tell apart from a step back, the four stay as they were, and the
    /// next reading is measured from this one: shares of an interval are only right when all four
    /// counts cover the same time.
    HostCPULoadInfo add(const ProcessorTicks& reading);

private:
    std::optional<ProcessorTicks> previous_;
    ProcessorTicks total_;
};

}  // namespace zephrine
