// SPDX-License-Identifier: MIT
#include "sampling/CPUTicks.h"

namespace zephrine {

std::optional<double> CPUTicks::usage(const CPUTicks& since) const {
    // Unsigned 32-bit subtraction wraps as the counters do; only the sums need 64 bits.
    const std::uint32_t userTicks = user - since.user;
    const std::uint32_t systemTicks = system - since.system;
    const std::uint32_t idleTicks = idle - since.idle;
    const std::uint32_t niceTicks = nice - since.nice;

    const std::uint64_t busy = std::uint64_t{userTicks} + systemTicks + niceTicks;
    const std::uint64_t total = busy + idleTicks;
    if (total == 0) {
        return std::nullopt;
    }
    return static_cast<double>(busy) / static_cast<double>(total) * 100.0;
}

}  // namespace zephrine
