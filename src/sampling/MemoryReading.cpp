// SPDX-License-Identifier: MIT
#include "sampling/MemoryReading.h"

#include <algorithm>
#include <limits>

#include "platform/Trap.h"

namespace zephrine {

double MemoryReading::percent() const {
    return static_cast<double>(used) / static_cast<double>(total) * 100.0;
}

double MemoryReading::usedGigabytes() const {
    return static_cast<double>(used) * gigabytesPerByte;
}

double MemoryReading::totalGigabytes() const {
    return static_cast<double>(total) * gigabytesPerByte;
}

std::uint64_t MemoryReading::usedBytes(const vm_statistics64& stats, std::uint64_t pageSize,
                                       std::uint64_t total) {
    const std::uint64_t counted = std::uint64_t{stats.active_count} + stats.inactive_count +
                                  stats.wire_count + stats.compressor_page_count;
    const std::uint64_t reclaimable =
        std::uint64_t{stats.purgeable_count} + stats.external_page_count;
    const std::uint64_t pages = counted > reclaimable ? counted - reclaimable : 0;
    trapUnless(pages == 0 || pageSize <= std::numeric_limits<std::uint64_t>::max() / pages);
    return std::min(pages * pageSize, total);
}

std::optional<double> percentOf(const std::optional<MemoryReading>& memory) {
    return memory ? std::optional(memory->percent()) : std::nullopt;
}

}  // namespace zephrine
