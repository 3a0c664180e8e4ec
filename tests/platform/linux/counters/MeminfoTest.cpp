// SPDX-License-Identifier: MIT
#include "platform/linux/counters/Meminfo.h"

#include <gtest/gtest.h>

#include "platform/linux/Captured.h"
#include "platform/linux/FakeTree.h"

namespace zephrine {
namespace {

using testing::captured;

constexpr std::uint64_t kB = 1024;

Meminfo read(const std::string& name) {
    return parseMeminfo(captured("meminfo/" + name));
}

TEST(Meminfo, ReadsTheFieldsInBytes) {
    const Meminfo memory = read("zram-laptop");
    EXPECT_EQ(memory.memTotal, 8000000 * kB);
    EXPECT_EQ(memory.memFree, 310000 * kB);
    EXPECT_EQ(memory.memAvailable, 1900000 * kB);
    EXPECT_EQ(memory.active, 3100000 * kB);
    EXPECT_EQ(memory.inactive, 2400000 * kB);
    EXPECT_EQ(memory.activeFile, 800000 * kB);
    EXPECT_EQ(memory.inactiveFile, 1150000 * kB);
    EXPECT_EQ(memory.sReclaimable, 180000 * kB);
    EXPECT_EQ(memory.kReclaimable, 210000 * kB);
    EXPECT_EQ(memory.swapTotal, 4000000 * kB);
    EXPECT_EQ(memory.swapFree, 2600000 * kB);
    EXPECT_EQ(memory.zswap, 120000 * kB);
    EXPECT_EQ(memory.gpuReclaim, std::nullopt);
    EXPECT_EQ(parseMeminfo("GPUReclaim:  12 kB\n").gpuReclaim, 12 * kB);
}

TEST(Meminfo, ReadsTheCapturedMachineInAnyOrderOfLines) {
    const Meminfo memory = read("debian-vm");
    EXPECT_EQ(memory.memTotal, 24684084 * kB);
    EXPECT_EQ(memory.swapTotal, 0U);
    EXPECT_EQ(availableMemory(memory), memory.memAvailable);
    const Meminfo reversed = read("hostile-reordered");
    EXPECT_EQ(reversed.memTotal, memory.memTotal);
    EXPECT_EQ(reversed.activeFile, memory.activeFile);
    EXPECT_EQ(availableMemory(reversed), availableMemory(memory));
}

TEST(Meminfo, LeavesOutWhatCannotBeUnderstood) {
    const Meminfo negative = read("hostile-negative");
    EXPECT_EQ(negative.memTotal, 1000 * kB);
    EXPECT_EQ(negative.memFree, std::nullopt);
    EXPECT_EQ(negative.memAvailable, std::nullopt);
    const Meminfo huge = read("hostile-beyond-64-bits");
    EXPECT_EQ(huge.memTotal, std::nullopt);
    EXPECT_EQ(huge.memFree, std::nullopt);
    const Meminfo nul = read("hostile-nul-bytes");
    EXPECT_EQ(nul.memTotal, std::nullopt);
    EXPECT_EQ(nul.memFree, 100 * kB);
    const Meminfo units = read("hostile-units");
    EXPECT_EQ(units.memTotal, std::nullopt);
    EXPECT_EQ(units.memFree, std::nullopt);
    EXPECT_EQ(units.memAvailable, std::nullopt);
    EXPECT_EQ(read("hostile-empty").memTotal, std::nullopt);
}

TEST(Meminfo, DoesNotTakePartOfANumberForAllOfIt) {
    const Meminfo memory = read("hostile-truncated");
    EXPECT_NE(memory.memFree, std::nullopt);
    EXPECT_EQ(memory.memAvailable, std::nullopt);
}

TEST(Meminfo, TakesTheFirstOfTwoLines) {
    const Meminfo memory = read("hostile-duplicated");
    EXPECT_EQ(memory.memTotal, 1000 * kB);
    EXPECT_EQ(memory.memAvailable, 500 * kB);
}

TEST(Meminfo, GetsThroughTenMegabytes) {
    const std::string noise = std::string(std::size_t{10} << 20U, 'x') + '\n';
    EXPECT_EQ(parseMeminfo(noise + "MemTotal: 5 kB\n").memTotal, 5 * kB);
}

TEST(AvailableMemory, IsEstimatedOnKernelsThatDoNotTellIt) {
    EXPECT_EQ(availableMemory(read("kernel-2.6.32")), (120000 + 380000 + 550000 + 60000) * kB);
}

TEST(AvailableMemory, IsTheFreeMemoryWhereAContainerSeesMoreThanItHas) {
    EXPECT_EQ(availableMemory(read("lxcfs-container")), 201000 * kB);
}

TEST(AvailableMemory, NeverExceedsTheTotal) {
    EXPECT_EQ(availableMemory(read("hostile-absurd")), 1000000 * kB);
    EXPECT_EQ(availableMemory(parseMeminfo("MemTotal: 5 kB\nMemAvailable: 9 kB\n")), 5 * kB);
}

TEST(AvailableMemory, IsAbsentWithoutATotalOrAnyHintOfFreeMemory) {
    EXPECT_EQ(availableMemory({}), std::nullopt);
    EXPECT_EQ(availableMemory(parseMeminfo("MemFree: 5 kB\n")), std::nullopt);
    EXPECT_EQ(availableMemory(parseMeminfo("MemTotal: 5 kB\nActive(file): 2 kB\n")), std::nullopt);
}

}  // namespace
}  // namespace zephrine
