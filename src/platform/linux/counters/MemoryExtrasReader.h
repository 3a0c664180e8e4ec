// SPDX-License-Identifier: MIT
// Reads what /proc/meminfo leaves out: the memory behind zram swap, and ZFS's cache. Neither
// changes how much memory counts as used; they say what it is used for.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "platform/linux/base/CounterFile.h"
#include "platform/linux/counters/VMStatistics.h"

namespace zephrine {

class MemoryExtrasReader {
public:
    /// `proc` and `sys` are where those file systems are mounted.
    MemoryExtrasReader(const std::string& proc, std::string sys);

    /// Asks for the swap devices only where there is swap. What cannot be read counts as nothing.
    MemoryExtras read(bool hasSwap);

private:
    struct ZramDevice {
        std::uint32_t number;
        CounterFile mmStat;
    };

    std::uint64_t zramMemory();
    CounterFile& mmStatOf(std::uint32_t number, std::size_t index);

    std::string sys_;
    CounterFile swaps_;
    std::vector<ZramDevice> zram_;  ///< in the order of the list of swap devices
    std::optional<CounterFile> arcstats_;
};

}  // namespace zephrine
