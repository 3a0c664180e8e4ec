// SPDX-License-Identifier: MIT
#include "sampling/MemoryReading.h"

#include <gtest/gtest.h>

#include <cmath>

namespace zephrine {
namespace {

constexpr vm_statistics64 counts{.active_count = 10,
                                 .inactive_count = 20,
                                 .wire_count = 30,
                                 .compressor_page_count = 40,
                                 .purgeable_count = 5,
                                 .external_page_count = 15};
constexpr std::uint64_t large = 1ULL << 40U;

TEST(MemoryReading, CountsAllPagesButThoseThatCanBeReclaimed) {
    EXPECT_EQ(MemoryReading::usedBytes(counts, 4096, large), 327680U);
}

TEST(MemoryReading, UsesNothingWhenMoreIsReclaimableThanCounted) {
    vm_statistics64 stats = counts;
    stats.external_page_count = 96;
    EXPECT_EQ(MemoryReading::usedBytes(stats, 4096, large), 0U);
}

TEST(MemoryReading, NeverExceedsTheTotal) {
    vm_statistics64 stats{};
    stats.active_count = 100;
    EXPECT_EQ(MemoryReading::usedBytes(stats, 4096, 409600), 409600U);
    stats.active_count = 101;
    EXPECT_EQ(MemoryReading::usedBytes(stats, 4096, 409600), 409600U);
}

TEST(MemoryReading, SumsPageCountsBeyond32Bits) {
    constexpr std::uint32_t most = 4294967295U;
    const vm_statistics64 stats{.active_count = most,
                                .inactive_count = most,
                                .wire_count = most,
                                .compressor_page_count = most};
    EXPECT_EQ(MemoryReading::usedBytes(stats, 1, ~0ULL), 4ULL * most);
    vm_statistics64 reclaimable = stats;
    reclaimable.purgeable_count = most;
    reclaimable.external_page_count = most;
    EXPECT_EQ(MemoryReading::usedBytes(reclaimable, 1, ~0ULL), 2ULL * most);
}

TEST(MemoryReading, AllowsEveryProductThatFits) {
    EXPECT_EQ(MemoryReading::usedBytes({.active_count = 1}, ~0ULL, ~0ULL), ~0ULL);
    EXPECT_EQ(MemoryReading::usedBytes({}, ~0ULL, ~0ULL), 0U);
}

TEST(MemoryReadingDeathTest, StopsTheProgramWhenTheProductOverflows) {
    EXPECT_DEATH(MemoryReading::usedBytes(counts, 1ULL << 60U, large), "^$");
    EXPECT_DEATH(MemoryReading::usedBytes({.active_count = 2}, 1ULL << 63U, large), "^$");
}

TEST(MemoryReading, TakesThePercentageOfTheTotal) {
    EXPECT_EQ((MemoryReading{.used = 1, .total = 4}).percent(), 25.0);
}

TEST(MemoryReading, DividesBeforeItMultiplies) {
    // Every other order of these operations gives 33.333333333333336.
    EXPECT_EQ((MemoryReading{.used = 1, .total = 3}).percent(), 33.33333333333333);
}

TEST(MemoryReading, DoesNotHideATotalOfZero) {
    EXPECT_TRUE(std::isnan((MemoryReading{.used = 0, .total = 0}).percent()));
    EXPECT_TRUE(std::isinf((MemoryReading{.used = 1, .total = 0}).percent()));
}

TEST(MemoryReading, MeasuresGigabytesInPowersOfTwo) {
    const MemoryReading reading{.used = 3ULL << 29U, .total = 16ULL << 30U};
    EXPECT_EQ(reading.usedGigabytes(), 1.5);
    EXPECT_EQ(reading.totalGigabytes(), 16.0);
}

}  // namespace
}  // namespace zephrine
