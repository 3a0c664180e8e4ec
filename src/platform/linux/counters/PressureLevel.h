// SPDX-License-Identifier: MIT
// How hard the machine is pressed for memory, as a level: 1 normal, 2 warning, 4 critical. Linux
// tells stall times and free memory; the rules that make a level of them are here.
#pragma once

#include <cstdint>
#include <optional>

#include "platform/linux/counters/Meminfo.h"
#include "platform/linux/counters/Pressure.h"

namespace zephrine {

class PressureLevel {
public:
    /// The level at `now`, in seconds of a clock that never steps back. Absent only when neither
    /// the memory figures nor the stall times are known. A level rises at once, and falls when
    /// nothing has asked for it for 10 seconds.
    std::optional<std::int32_t> update(const std::optional<Meminfo>& memory,
                                       const std::optional<StallTimes>& stalls, double now);

private:
    /// Percent of the time of the last window.
    struct StallRates {
        double some = 0;
        double full = 0;
    };
    struct Reading {
        StallTimes stalls;
        double time = 0;
    };

    void measure(const StallTimes& stalls, double now);
    [[nodiscard]] std::int32_t levelNow(const std::optional<Meminfo>& memory) const;
    std::int32_t held(std::int32_t level, double now);

    std::optional<Reading> windowStart_;
    std::optional<StallRates> rates_;     ///< absent until a first window is complete
    std::optional<double> lastWarning_;   ///< when a level of 2 or more was last asked for
    std::optional<double> lastCritical_;  ///< when level 4 was last asked for
};

}  // namespace zephrine
