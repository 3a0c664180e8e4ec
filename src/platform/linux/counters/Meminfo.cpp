// SPDX-License-Identifier: MIT
// Format: Documentation/filesystems/proc.rst, section "meminfo". Lines read "Name:   number kB".
#include "platform/linux/counters/Meminfo.h"

#include <algorithm>
#include <array>

#include "platform/linux/base/SaturatingMath.h"
#include "platform/linux/base/TextScan.h"

namespace zephrine {
namespace {

struct Field {
    std::string_view key;
    std::optional<std::uint64_t> Meminfo::*value;
};

constexpr std::array<Field, 13> kFields{{
    {"MemTotal:", &Meminfo::memTotal},
    {"MemFree:", &Meminfo::memFree},
    {"MemAvailable:", &Meminfo::memAvailable},
    {"Active:", &Meminfo::active},
    {"Inactive:", &Meminfo::inactive},
    {"Active(file):", &Meminfo::activeFile},
    {"Inactive(file):", &Meminfo::inactiveFile},
    {"SwapTotal:", &Meminfo::swapTotal},
    {"SwapFree:", &Meminfo::swapFree},
    {"Zswap:", &Meminfo::zswap},
    {"KReclaimable:", &Meminfo::kReclaimable},
    {"SReclaimable:", &Meminfo::sReclaimable},
    {"GPUReclaim:", &Meminfo::gpuReclaim},
}};

}  // namespace

Meminfo parseMeminfo(std::string_view text) {
    Meminfo memory;
    while (auto line = takeLine(text)) {
        const std::string_view key = takeWord(*line);
        const auto* const field = std::ranges::find(kFields, key, &Field::key);
        if (field != kFields.end() && !(memory.*field->value)) {
            memory.*field->value = parseKilobytes(*line);
        }
    }
    return memory;
}

std::optional<std::uint64_t> availableMemory(const Meminfo& memory) {
    if (!memory.memTotal || (!memory.memAvailable && !memory.memFree)) {
        return std::nullopt;
    }
    const std::uint64_t total = *memory.memTotal;
    std::uint64_t available = 0;
    if (memory.memAvailable) {
        available = *memory.memAvailable;
    } else {
        // Before Linux 3.14 there is no estimate: what is free, and what can be dropped at once.
        for (const auto& part :
             {memory.memFree, memory.activeFile, memory.inactiveFile, memory.sReclaimable}) {
            available = saturatingSum(available, part.value_or(0));
        }
    }
    if (available > total) {
        // A container's view that does not fit together: its total is its own limit, the rest is
        // the whole machine's.
        available = memory.memFree.value_or(total);
    }
    return std::min(available, total);
}

}  // namespace zephrine
