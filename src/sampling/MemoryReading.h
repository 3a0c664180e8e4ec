// SPDX-License-Identifier: MIT
// Used and total physical memory, and the definition of "used".
#pragma once

#include <cstdint>
#include <optional>

#include "platform/HostCounters.h"

namespace zephrine {

/// Bytes in the gigabyte of every text here, as a factor: multiplying by a power of two is exact.
inline constexpr double gigabytesPerByte = 1.0 / (1ULL << 30U);

struct MemoryReading {
    std::uint64_t used = 0;   ///< bytes
    std::uint64_t total = 0;  ///< bytes of physical memory; the sampler never builds a reading of 0

    /// `used` in percent of `total`.
    [[nodiscard]] double percent() const;
    /// `used` and `total` in units of 2^30 bytes.
    [[nodiscard]] double usedGigabytes() const;
    [[nodiscard]] double totalGigabytes() const;

    /// Used memory in bytes, at most `total`: what is active, inactive, wired or compressed, less
    /// what could be taken back without writing anything to disk (purgeable and file-backed pages).
    /// A product of pages and page size beyond 64 bits stops the program.
    static std::uint64_t usedBytes(const vm_statistics64& stats, std::uint64_t pageSize,
                                   std::uint64_t total);

    bool operator==(const MemoryReading&) const = default;
};

/// Absent for an absent reading.
std::optional<double> percentOf(const std::optional<MemoryReading>& memory);

}  // namespace zephrine
