// SPDX-License-Identifier: MIT
// Dresses the kernel's memory figures as Mach page counts, so that the program's own definition of
// used memory yields MemTotal − MemAvailable, which is what `free` prints.
#pragma once

#include <cstdint>
#include <optional>

#include "platform/HostCounters.h"
#include "platform/linux/counters/Meminfo.h"

namespace zephrine {

/// Bytes that /proc/meminfo does not tell.
struct MemoryExtras {
    std::uint64_t zramSwap = 0;        ///< memory that compressed swap devices occupy
    std::uint64_t reclaimableArc = 0;  ///< the part of ZFS's cache that it gives back on demand
};

/// Page counts for pages of `pageSize` bytes. Absent when the total or the available memory is
/// unknown, or `pageSize` is 0. No count exceeds what 32 bits hold: beyond 16 TiB in pages of
/// 4 KiB the figures stop growing.
std::optional<vm_statistics64> vmStatistics(const Meminfo& memory, const MemoryExtras& extras,
                                            std::uint64_t pageSize);

}  // namespace zephrine
