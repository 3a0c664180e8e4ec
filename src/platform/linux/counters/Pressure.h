// SPDX-License-Identifier: MIT
// The stall counters of /proc/pressure/memory.
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace zephrine {

/// Microseconds since boot during which some, or all, of the running tasks waited for memory.
struct StallTimes {
    std::uint64_t some = 0;
    std::uint64_t full = 0;
};

/// Absent unless both lines can be read.
std::optional<StallTimes> parsePressure(std::string_view text);

}  // namespace zephrine
