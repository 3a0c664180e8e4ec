// SPDX-License-Identifier: MIT
// The fields of /proc/meminfo that the memory figures are made from.
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace zephrine {

/// Bytes. A field is absent when the kernel has no such line or the line cannot be understood.
struct Meminfo {
    std::optional<std::uint64_t> memTotal;
    std::optional<std::uint64_t> memFree;
    std::optional<std::uint64_t> memAvailable;  ///< since Linux 3.14
    std::optional<std::uint64_t> active;
    std::optional<std::uint64_t> inactive;
    std::optional<std::uint64_t> activeFile;
    std::optional<std::uint64_t> inactiveFile;
    std::optional<std::uint64_t> sReclaimable;
    std::optional<std::uint64_t> kReclaimable;  ///< since Linux 4.20; contains sReclaimable
    std::optional<std::uint64_t> gpuReclaim;    ///< driver pools that can be given back
    std::optional<std::uint64_t> swapTotal;
    std::optional<std::uint64_t> swapFree;
    std::optional<std::uint64_t> zswap;  ///< what the compressed pages occupy; since Linux 5.19
};

/// Of a field that appears twice the first counts.
Meminfo parseMeminfo(std::string_view text);

/// Bytes that programs can still have without swapping; never more than `memTotal`. Absent when
/// that, or both the kernel's own estimate and the free memory, are absent.
std::optional<std::uint64_t> availableMemory(const Meminfo& memory);

}  // namespace zephrine
