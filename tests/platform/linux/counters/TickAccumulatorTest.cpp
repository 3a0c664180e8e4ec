// SPDX-License-Identifier: MIT
#include "platform/linux/counters/TickAccumulator.h"

#include <gtest/gtest.h>

#include <limits>
#include <random>

#include "sampling/CPUTicks.h"

namespace zephrine {
namespace {

constexpr std::uint64_t kMax = std::numeric_limits<std::uint64_t>::max();

CPUTicks published(TickAccumulator& accumulator, const ProcessorTicks& reading) {
    const HostCPULoadInfo info = accumulator.add(reading);
    return {.user = info[CPU_STATE_USER],
            .system = info[CPU_STATE_SYSTEM],
            .idle = info[CPU_STATE_IDLE],
            .nice = info[CPU_STATE_NICE]};
}

TEST(TickAccumulator, PublishesTheCountsAsTheyAre) {
    TickAccumulator accumulator;
    const CPUTicks ticks = published(accumulator, {.user = 1, .system = 2, .idle = 3, .nice = 4});
    EXPECT_EQ(ticks.user, 1U);
    EXPECT_EQ(ticks.system, 2U);
    EXPECT_EQ(ticks.idle, 3U);
    EXPECT_EQ(ticks.nice, 4U);
}

TEST(TickAccumulator, GivesTheUsageOfTheInterval) {
    TickAccumulator accumulator;
    const CPUTicks first = published(accumulator, {10, 10, 70, 10});
    EXPECT_EQ(published(accumulator, {20, 20, 140, 20}).usage(first), 30.0);
}

TEST(TickAccumulator, WrapsRoundAtThirtyTwoBits) {
    TickAccumulator accumulator;
    const CPUTicks first = published(accumulator, {4294967294, 0, 0, 0});
    const CPUTicks second = published(accumulator, {4294967299, 0, 5, 0});
    EXPECT_EQ(second.user, 3U);
    EXPECT_EQ(second.usage(first), 50.0);
}

/// One count steps back by 1 while another grew: nothing can be said about that interval, and the
/// one after it is measured from the reading that stepped back.
void expectNoFigureForOneStep(std::uint64_t ProcessorTicks::*count) {
    TickAccumulator accumulator;
    ProcessorTicks reading{1000, 1000, 1000, 1000};
    const CPUTicks first = published(accumulator, reading);
    reading.user += 50;
    reading.idle += 50;
    reading.*count = 999;
    const CPUTicks second = published(accumulator, reading);
    EXPECT_EQ(second.usage(first), std::nullopt);
    reading.user += 25;
    reading.idle += 75;
    EXPECT_EQ(published(accumulator, reading).usage(second), 25.0);
}

TEST(TickAccumulator, LeavesOutAnIntervalInWhichIdleSteppedBack) {
    expectNoFigureForOneStep(&ProcessorTicks::idle);
}

TEST(TickAccumulator, LeavesOutAnIntervalInWhichAnyOtherCountSteppedBack) {
    expectNoFigureForOneStep(&ProcessorTicks::user);
    expectNoFigureForOneStep(&ProcessorTicks::system);
    expectNoFigureForOneStep(&ProcessorTicks::nice);
}

TEST(TickAccumulator, SurvivesAProcessorThatTakesItsTicksAwayWithIt) {
    TickAccumulator accumulator;
    const CPUTicks both = published(accumulator, {2000, 2000, 20000, 20});
    const CPUTicks one = published(accumulator, {1010, 1000, 10000, 10});
    EXPECT_EQ(one.usage(both), std::nullopt);
    EXPECT_EQ(published(accumulator, {1020, 1000, 10090, 10}).usage(one), 10.0);
    published(accumulator, {2000, 2000, 20000, 20});  // and back again
}

TEST(TickAccumulator, RefusesStepsThatThirtyTwoBitsCannotShow) {
    TickAccumulator accumulator;
    const CPUTicks first = published(accumulator, {0, 0, 0, 0});
    const CPUTicks second = published(accumulator, {std::uint64_t{1} << 32U, 0, 1, 0});
    EXPECT_EQ(second.usage(first), std::nullopt);
    const CPUTicks third = published(accumulator, {kMax, kMax, kMax, kMax});
    EXPECT_EQ(third.usage(second), std::nullopt);
    EXPECT_EQ(published(accumulator, {0, 0, 0, 0}).usage(third), std::nullopt);
}

TEST(TickAccumulator, NeverStepsBackNorLeavesThePercentRange) {
    std::mt19937_64 random(20261121);  // NOLINT(cert-msc51-cpp): the same numbers every time
    TickAccumulator accumulator;
    const auto absurd = [&random] { return random() >> (random() % 64); };
    CPUTicks last = published(accumulator, {});
    for (int round = 0; round < 100000; ++round) {
        const CPUTicks next = published(accumulator, {absurd(), absurd(), absurd(), absurd()});
        for (const auto count :
             {&CPUTicks::user, &CPUTicks::system, &CPUTicks::idle, &CPUTicks::nice}) {
            ASSERT_LT(next.*count - last.*count, std::uint32_t{1} << 31U);
        }
        const double usage = next.usage(last).value_or(0);
        ASSERT_TRUE(usage >= 0 && usage <= 100) << usage;
        last = next;
    }
}

}  // namespace
}  // namespace zephrine
