// SPDX-License-Identifier: MIT
// A machine that has neither swap nor ZFS pays nothing for this.
#include "platform/linux/counters/MemoryExtrasReader.h"

#include <unistd.h>

#include <array>
#include <utility>

#include "platform/linux/base/SaturatingMath.h"
#include "platform/linux/counters/ArcStats.h"
#include "platform/linux/counters/SwapDevices.h"

namespace zephrine {

MemoryExtrasReader::MemoryExtrasReader(const std::string& proc, std::string sys)
    : sys_(std::move(sys)), swaps_(proc + "/swaps") {
    // The file comes with the module, which is loaded long before anybody signs in.
    const std::string arcstats = proc + "/spl/kstat/zfs/arcstats";
    if (::access(arcstats.c_str(), R_OK) == 0) {
        arcstats_.emplace(arcstats);
    }
}

MemoryExtras MemoryExtrasReader::read(bool hasSwap) {
    MemoryExtras extras;
    if (hasSwap) {
        extras.zramSwap = zramMemory();
    }
    if (arcstats_) {
        std::array<char, 8192> buffer;  // NOLINT(cppcoreguidelines-pro-type-member-init)
        if (const auto text = arcstats_->read(buffer)) {
            extras.reclaimableArc = parseReclaimableArc(*text).value_or(0);
        }
    }
    return extras;
}

std::uint64_t MemoryExtrasReader::zramMemory() {
    std::array<char, 4096> buffer;  // NOLINT(cppcoreguidelines-pro-type-member-init)
    auto swaps = swaps_.read(buffer);
    std::uint64_t sum = 0;
    std::size_t index = 0;
    while (swaps) {
        const auto number = takeZramDevice(*swaps);
        if (!number) {
            break;
        }
        std::array<char, 512> line;  // NOLINT(cppcoreguidelines-pro-type-member-init)
        if (const auto text = mmStatOf(*number, index).read(line)) {
            sum = saturatingSum(sum, parseZramMemoryUsed(*text).value_or(0));
        }
        ++index;
    }
    return sum;
}

CounterFile& MemoryExtrasReader::mmStatOf(std::uint32_t number, std::size_t index) {
    if (index >= zram_.size() || zram_[index].number != number) {
        zram_.erase(zram_.begin() + static_cast<std::ptrdiff_t>(index), zram_.end());
        zram_.push_back(
            {number, CounterFile(sys_ + "/block/zram" + std::to_string(number) + "/mm_stat")});
    }
    return zram_[index].mmStat;
}

}  // namespace zephrine
