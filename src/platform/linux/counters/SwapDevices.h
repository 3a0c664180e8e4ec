// SPDX-License-Identifier: MIT
// Compressed swap in memory (zram): which devices swap, and what one of them occupies.
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace zephrine {

/// Takes lines off the front of the text of /proc/swaps up to the next one that names a zram device
/// and returns that device's number; absent when there is no more.
std::optional<std::uint32_t> takeZramDevice(std::string_view& swaps);

/// Bytes of memory that the device occupies, from the text of /sys/block/zramN/mm_stat.
std::optional<std::uint64_t> parseZramMemoryUsed(std::string_view mmStat);

}  // namespace zephrine
