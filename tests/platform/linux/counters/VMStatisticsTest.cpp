// SPDX-License-Identifier: MIT
#include "platform/linux/counters/VMStatistics.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

#include "platform/linux/Captured.h"
#include "platform/linux/FakeTree.h"
#include "sampling/MemoryReading.h"

namespace zephrine {
namespace {

using testing::captured;

constexpr std::uint64_t kPage = 4096;

Meminfo read(const std::string& name) {
    return parseMeminfo(captured("meminfo/" + name));
}

/// Used memory by the program's own definition, which knows nothing of Linux.
std::uint64_t usedBytes(const Meminfo& memory, const MemoryExtras& extras, std::uint64_t page) {
    const auto statistics = vmStatistics(memory, extras, page);
    if (!statistics) {
        ADD_FAILURE() << "no statistics";
        return 0;
    }
    return MemoryReading::usedBytes(*statistics, page, memory.memTotal.value_or(0));
}

TEST(VMStatistics, MakesUsedMemoryTheTotalLessTheAvailable) {
    for (const char* name : {"debian-vm", "zram-laptop", "zfs-server", "lxcfs-container",
                             "kernel-2.6.32", "hostile-duplicated", "hostile-absurd"}) {
        const Meminfo memory = read(name);
        const std::uint64_t used = *memory.memTotal - *availableMemory(memory);
        EXPECT_EQ(usedBytes(memory, {}, kPage), used / kPage * kPage) << name;
    }
    const Meminfo power9 = read("power9-64-kib-pages");
    EXPECT_EQ(usedBytes(power9, {}, 65536), (268000064ULL - 190000000ULL) * 1024 / 65536 * 65536);
}

TEST(VMStatistics, SaysWhatTheMemoryIsUsedFor) {
    const auto statistics = vmStatistics(read("zram-laptop"), {.zramSwap = 8 * kPage}, kPage);
    ASSERT_TRUE(statistics);
    EXPECT_EQ(statistics->active_count, 3100000U / 4);
    EXPECT_EQ(statistics->inactive_count, 2400000U / 4);
    EXPECT_EQ(statistics->external_page_count, (800000U + 1150000U) / 4);
    EXPECT_EQ(statistics->purgeable_count, 210000U / 4);
    EXPECT_EQ(statistics->compressor_page_count, 120000U / 4 + 8);
    // 8000000 − 1900000 + 1950000 + 210000 − 3100000 − 2400000 − 120000 kB, less the zram
    EXPECT_EQ(statistics->wire_count, 2640000U / 4 - 8);
}

TEST(VMStatistics, CountsReclaimableKernelMemoryOnOldKernelsAsWell) {
    const auto statistics = vmStatistics(read("kernel-2.6.32"), {}, kPage);
    ASSERT_TRUE(statistics);
    EXPECT_EQ(statistics->purgeable_count, 60000U / 4);
}

TEST(VMStatistics, CountsFileSystemAndGraphicsCachesAsPurgeable) {
    Meminfo memory = read("zfs-server");
    memory.gpuReclaim = 3 * kPage;
    const MemoryExtras extras{.reclaimableArc = 5 * kPage};
    const auto statistics = vmStatistics(memory, extras, kPage);
    ASSERT_TRUE(statistics);
    EXPECT_EQ(statistics->purgeable_count, 1200000U / 4 + 8);
    EXPECT_EQ(usedBytes(memory, extras, kPage), usedBytes(read("zfs-server"), {}, kPage));
}

TEST(VMStatistics, WiresNothingWhereTheListsHoldMoreThanIsUsed) {
    Meminfo memory;
    memory.memTotal = 100 * kPage;
    memory.memAvailable = 90 * kPage;
    memory.active = 50 * kPage;
    memory.inactive = 40 * kPage;
    const auto statistics = vmStatistics(memory, {}, kPage);
    ASSERT_TRUE(statistics);
    EXPECT_EQ(statistics->wire_count, 0U);
    EXPECT_EQ(statistics->active_count + statistics->inactive_count, 10U);
}

TEST(VMStatistics, IsAbsentWhenTheAvailableMemoryIsUnknown) {
    EXPECT_FALSE(vmStatistics(read("hostile-empty"), {}, kPage));
    EXPECT_FALSE(vmStatistics(read("hostile-negative"), {}, kPage));
    EXPECT_FALSE(vmStatistics(read("hostile-beyond-64-bits"), {}, kPage));
    EXPECT_FALSE(vmStatistics(read("debian-vm"), {}, 0));
}

TEST(VMStatistics, StaysTrueForAnyFiguresOfAMachineWithFewerPagesThanThirtyBitsCount) {
    std::mt19937_64 random(1);  // NOLINT(cert-msc51-cpp): the same numbers every time
    const auto any = [&random] { return std::optional(random() >> (random() % 64)); };
    for (int round = 0; round < 100000; ++round) {
        const Meminfo memory{.memTotal = random() >> (22 + random() % 42),
                             .memFree = any(),
                             .memAvailable = any(),
                             .active = any(),
                             .inactive = any(),
                             .activeFile = any(),
                             .inactiveFile = any(),
                             .sReclaimable = any(),
                             .kReclaimable = any(),
                             .gpuReclaim = any(),
                             .swapTotal = any(),
                             .swapFree = any(),
                             .zswap = any()};
        const MemoryExtras extras{.zramSwap = *any(), .reclaimableArc = *any()};
        const std::uint64_t used = *memory.memTotal - *availableMemory(memory);
        const std::uint64_t pages = std::min(used / kPage, *memory.memTotal / kPage);
        ASSERT_EQ(usedBytes(memory, extras, kPage), pages * kPage);
    }
}

}  // namespace
}  // namespace zephrine
