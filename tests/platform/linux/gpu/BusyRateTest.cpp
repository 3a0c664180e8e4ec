// SPDX-License-Identifier: MIT
#include "platform/linux/gpu/BusyRate.h"

#include <gtest/gtest.h>

#include <limits>

namespace zephrine {
namespace {

TEST(BusyRate, IsTheBusyShareOfTheTimeThatPassed) {
    BusyRate rate;
    EXPECT_EQ(rate.next(500, 10'000), std::nullopt);
    EXPECT_EQ(rate.next(750, 11'000), 25.0);
    EXPECT_EQ(rate.next(750, 12'000), 0.0);
    EXPECT_EQ(rate.next(1750, 13'000), 100.0);
}

TEST(BusyRate, StaysAtTheLargestBusyTimeUntilItIsPassedAgain) {
    BusyRate rate;
    rate.next(1000, 10'000);
    EXPECT_EQ(rate.next(400, 11'000), 0.0);
    EXPECT_EQ(rate.next(900, 12'000), 0.0);
    EXPECT_EQ(rate.next(1100, 13'000), 10.0);
}

TEST(BusyRate, IsAbsentWhenNoTimePassed) {
    BusyRate rate;
    rate.next(1000, 10'000);
    EXPECT_EQ(rate.next(1000, 10'000), std::nullopt);
    EXPECT_EQ(rate.next(1500, 9'000), std::nullopt);
    EXPECT_EQ(rate.next(1500, 11'000), 50.0);
}

TEST(BusyRate, SurvivesTheLargestCounters) {
    constexpr auto most = std::numeric_limits<std::uint64_t>::max();
    BusyRate rate;
    rate.next(0, 0);
    EXPECT_EQ(rate.next(most, most), 100.0);
}

TEST(PlausiblePercent, ForgivesALittleMoreThanAllButNotMuch) {
    EXPECT_EQ(plausiblePercent(0), 0.0);
    EXPECT_EQ(plausiblePercent(99.5), 99.5);
    EXPECT_EQ(plausiblePercent(104), 100.0);
    EXPECT_EQ(plausiblePercent(111), std::nullopt);
    EXPECT_EQ(plausiblePercent(std::numeric_limits<double>::infinity()), std::nullopt);
    EXPECT_EQ(plausiblePercent(std::numeric_limits<double>::quiet_NaN()), std::nullopt);
}

}  // namespace
}  // namespace zephrine
