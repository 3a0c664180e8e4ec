// SPDX-License-Identifier: MIT
// Formats: /proc/swaps in proc(5); mm_stat in Documentation/admin-guide/blockdev/zram.rst.
#include "platform/linux/counters/SwapDevices.h"

#include <limits>

#include "platform/linux/base/TextScan.h"

namespace zephrine {

std::optional<std::uint32_t> takeZramDevice(std::string_view& swaps) {
    constexpr std::string_view kPrefix = "/dev/zram";
    while (auto line = takeLine(swaps)) {
        const std::string_view file = takeWord(*line);
        if (!file.starts_with(kPrefix)) {
            continue;
        }
        const auto number = parseUnsigned(file.substr(kPrefix.size()));
        if (number && *number <= std::numeric_limits<std::uint32_t>::max()) {
            return static_cast<std::uint32_t>(*number);
        }
    }
    return std::nullopt;
}

std::optional<std::uint64_t> parseZramMemoryUsed(std::string_view mmStat) {
    auto line = takeLine(mmStat);
    if (!line) {
        return std::nullopt;
    }
    takeWord(*line);                        // orig_data_size: what was swapped out
    takeWord(*line);                        // compr_data_size: the same, compressed
    return parseUnsigned(takeWord(*line));  // mem_used_total: that and what the allocator needs
}

}  // namespace zephrine
