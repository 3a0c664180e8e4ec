// SPDX-License-Identifier: MIT
#include "sampling/CPUTicks.h"

#include <gtest/gtest.h>

namespace zephrine {
namespace {

constexpr CPUTicks start{.user = 10, .system = 10, .idle = 70, .nice = 10};

TEST(CPUTicks, GivesTheShareOfTicksThatWereNotIdle) {
    const CPUTicks later{.user = 20, .system = 20, .idle = 140, .nice = 20};
    EXPECT_EQ(later.usage(start), 30.0);
}

TEST(CPUTicks, DividesBeforeItMultiplies) {
    // Every other order of these operations gives 33.333333333333336.
    EXPECT_EQ((CPUTicks{.user = 1, .idle = 2}).usage({}), 33.33333333333333);
}

TEST(CPUTicks, GivesNoUsageWhenNoTickElapsed) {
    EXPECT_EQ(start.usage(start), std::nullopt);
}

TEST(CPUTicks, FollowsACounterThatWrapsRound) {
    const CPUTicks before{.user = 4294967294U, .system = 0, .idle = 0, .nice = 0};
    const CPUTicks after{.user = 3, .system = 0, .idle = 5, .nice = 0};
    EXPECT_EQ(after.usage(before), 50.0);
}

TEST(CPUTicks, CountsNiceTicksAsBusy) {
    CPUTicks later = start;
    later.nice += 7;
    EXPECT_EQ(later.usage(start), 100.0);
}

TEST(CPUTicks, GivesZeroWhenOnlyIdleTicksElapsed) {
    CPUTicks later = start;
    later.idle += 7;
    EXPECT_EQ(later.usage(start), 0.0);
}

TEST(CPUTicks, AddsDifferencesOfEverySizeWithoutOverflow) {
    constexpr std::uint32_t most = 4294967295U;
    const CPUTicks zero{};
    const CPUTicks full{.user = most, .system = most, .idle = most, .nice = most};
    EXPECT_EQ(full.usage(zero), 75.0);
}

}  // namespace
}  // namespace zephrine
