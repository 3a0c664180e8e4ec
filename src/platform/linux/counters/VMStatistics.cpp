// SPDX-License-Identifier: MIT
// What Linux calls active and inactive holds the page cache; tmpfs is in neither the cache nor any
// program's memory, and the kernel's own pages are in none of them. All that is neither cache nor
// on these lists therefore goes to the wired pages, and the sum comes out right.
#include "platform/linux/counters/VMStatistics.h"

#include <algorithm>
#include <limits>

#include "platform/linux/base/SaturatingMath.h"

namespace zephrine {
namespace {

/// Whole pages, none of the counts above the machine's memory.
struct Pages {
    std::uint64_t size = 1;
    std::uint64_t total = 0;

    [[nodiscard]] std::uint64_t of(std::uint64_t bytes) const {
        return std::min(bytes / size, total);
    }
    [[nodiscard]] std::uint64_t of(std::optional<std::uint64_t> bytes) const {
        return of(bytes.value_or(0));
    }
};

std::uint32_t count(std::uint64_t pages) {
    constexpr std::uint64_t kMax = std::numeric_limits<std::uint32_t>::max();
    return static_cast<std::uint32_t>(std::min(pages, kMax));
}

std::uint64_t purgeableBytes(const Meminfo& memory, const MemoryExtras& extras) {
    const std::uint64_t kernel =
        memory.kReclaimable ? *memory.kReclaimable : memory.sReclaimable.value_or(0);
    return saturatingSum(saturatingSum(kernel, memory.gpuReclaim.value_or(0)),
                         extras.reclaimableArc);
}

/// Takes what `counted` exceeds `limit` by off `part`, and off `counted`.
void trim(std::uint64_t& part, std::uint64_t& counted, std::uint64_t limit) {
    const std::uint64_t excess = std::min(part, saturatingDifference(counted, limit));
    part -= excess;
    counted -= excess;
}

}  // namespace

std::optional<vm_statistics64> vmStatistics(const Meminfo& memory, const MemoryExtras& extras,
                                            std::uint64_t pageSize) {
    const auto available = availableMemory(memory);
    if (!available || pageSize == 0) {
        return std::nullopt;
    }
    const Pages pages{.size = pageSize, .total = *memory.memTotal / pageSize};
    const std::uint64_t used = pages.of(*memory.memTotal - *available);
    const std::uint64_t external =
        pages.of(saturatingSum(memory.activeFile.value_or(0), memory.inactiveFile.value_or(0)));
    const std::uint64_t purgeable = pages.of(purgeableBytes(memory, extras));
    std::uint64_t active = pages.of(memory.active);
    std::uint64_t inactive = pages.of(memory.inactive);
    std::uint64_t compressor = pages.of(saturatingSum(memory.zswap.value_or(0), extras.zramSwap));

    // used = active + inactive + wired + compressor − purgeable − external. Where the lists alone
    // hold more than that allows, nothing is wired and they are cut down.
    const std::uint64_t limit = used + external + purgeable;
    std::uint64_t counted = active + inactive + compressor;
    trim(compressor, counted, limit);
    trim(inactive, counted, limit);
    trim(active, counted, limit);

    return vm_statistics64{.active_count = count(active),
                           .inactive_count = count(inactive),
                           .wire_count = count(limit - counted),
                           .compressor_page_count = count(compressor),
                           .purgeable_count = count(purgeable),
                           .external_page_count = count(external)};
}

}  // namespace zephrine
