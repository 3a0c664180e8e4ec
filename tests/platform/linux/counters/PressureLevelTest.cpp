// SPDX-License-Identifier: MIT
#include "platform/linux/counters/PressureLevel.h"

#include <gtest/gtest.h>

namespace zephrine {
namespace {

constexpr std::uint64_t kTotal = 1000000;

/// A machine of which `percent` of the memory is available.
Meminfo available(double percent) {
    Meminfo memory;
    memory.memTotal = kTotal;
    memory.memAvailable = static_cast<std::uint64_t>(percent * kTotal / 100);
    return memory;
}

/// A machine whose clock and stall counters the test moves.
struct Machine {
    /// Lets `seconds` pass, during which `some` and `full` percent of the time were lost.
    void pass(double seconds, double some, double full) {
        now += seconds;
        stalls.some += static_cast<std::uint64_t>(seconds * some * 1e4);
        stalls.full += static_cast<std::uint64_t>(seconds * full * 1e4);
    }

    std::optional<std::int32_t> with(double availablePercent) {
        return level.update(available(availablePercent), stalls, now);
    }

    PressureLevel level;
    StallTimes stalls{.some = 5000000, .full = 3000000};
    double now = 1000;
};

class PressureLevelTest : public ::testing::Test, protected Machine {};

/// The level of a fresh machine after one window with the given losses.
std::optional<std::int32_t> after(double some, double full, double availablePercent) {
    Machine machine;
    machine.with(availablePercent);
    machine.pass(2, some, full);
    return machine.with(availablePercent);
}

TEST_F(PressureLevelTest, IsNormalOnAnIdleMachine) {
    EXPECT_EQ(with(90), 1);
    pass(5, 0, 0);
    EXPECT_EQ(with(90), 1);
}

TEST_F(PressureLevelTest, IsCriticalBelowFourPercentAndAWarningBelowTen) {
    EXPECT_EQ(after(0, 0, 3.9), 4);
    EXPECT_EQ(after(0, 0, 4), 2);
    EXPECT_EQ(after(0, 0, 9.9), 2);
    EXPECT_EQ(after(0, 0, 10), 1);
}

TEST_F(PressureLevelTest, IsCriticalWhenEverythingStallsAndAQuarterIsNotLeft) {
    EXPECT_EQ(after(10, 10, 24.9), 4);
    EXPECT_EQ(after(10, 9.9, 24.9), 2);
    EXPECT_EQ(after(10, 10, 25), 2);
}

TEST_F(PressureLevelTest, IsAWarningWhenSomeTasksStallAndHalfIsNotLeft) {
    EXPECT_EQ(after(10, 0, 49.9), 2);
    EXPECT_EQ(after(9.9, 0, 49.9), 1);
    EXPECT_EQ(after(10, 0, 50), 1);
}

TEST_F(PressureLevelTest, IsAWarningWhenEverythingStallsALittleAndHalfIsNotLeft) {
    EXPECT_EQ(after(5, 5, 49.9), 2);
    EXPECT_EQ(after(5, 4.9, 49.9), 1);
}

TEST_F(PressureLevelTest, IgnoresAContainerAtItsOwnLimitWhileTheMachineHasMemory) {
    EXPECT_EQ(after(66, 60, 97), 1);
}

TEST_F(PressureLevelTest, MeasuresStallsOverTwoSecondsAtLeast) {
    with(40);
    pass(1, 100, 100);
    EXPECT_EQ(with(40), 1);
    pass(0.9, 100, 100);
    EXPECT_EQ(with(40), 1);
    pass(0.2, 0, 0);
    EXPECT_EQ(with(40), 2);
}

TEST_F(PressureLevelTest, IgnoresStallsFromBeforeItsFirstReading) {
    stalls = {.some = 1U << 30U, .full = 1U << 30U};
    EXPECT_EQ(with(20), 1);
    pass(2, 0, 0);
    EXPECT_EQ(with(20), 1);
}

TEST_F(PressureLevelTest, RisesAtOnceAndFallsAfterTenSeconds) {
    EXPECT_EQ(with(50), 1);
    EXPECT_EQ(with(3), 4);
    pass(9.9, 0, 0);
    EXPECT_EQ(with(50), 4);
    pass(0.2, 0, 0);
    EXPECT_EQ(with(50), 1);
}

TEST_F(PressureLevelTest, FallsOnlyAsFarAsTheLastTenSecondsAllow) {
    EXPECT_EQ(with(3), 4);
    pass(8, 0, 0);
    EXPECT_EQ(with(9), 4);  // still held
    pass(2.1, 0, 0);
    EXPECT_EQ(with(50), 2);
    pass(8, 0, 0);
    EXPECT_EQ(with(50), 1);
}

TEST_F(PressureLevelTest, BeginsItsTenSecondsAnewEachTimeTheLevelIsAskedFor) {
    for (int round = 0; round < 5; ++round) {
        EXPECT_EQ(with(9), 2);
        pass(8, 0, 0);
        EXPECT_EQ(with(50), 2);
    }
}

TEST_F(PressureLevelTest, MeasuresAnewWhenTheCountersFell) {
    with(20);
    pass(2, 0, 0);
    stalls = {.some = 0, .full = 0};
    EXPECT_EQ(with(20), 1);
    pass(2, 20, 20);
    EXPECT_EQ(with(20), 4);
}

TEST_F(PressureLevelTest, TakesLossesBeyondAllOfTheTimeForAllOfIt) {
    with(20);
    now += 2;
    stalls = {.some = ~std::uint64_t{0}, .full = ~std::uint64_t{0}};
    EXPECT_EQ(with(20), 4);
}

TEST_F(PressureLevelTest, GoesByTheMemoryAloneWithoutStallTimes) {
    EXPECT_EQ(PressureLevel().update(available(3), std::nullopt, now), 4);
    EXPECT_EQ(PressureLevel().update(available(9), std::nullopt, now), 2);
    EXPECT_EQ(PressureLevel().update(available(11), std::nullopt, now), 1);
}

TEST_F(PressureLevelTest, TakesFullSwapForAWarningOnlyWithoutStallTimes) {
    const auto levelOf = [this](double percent, std::uint64_t swapFree, bool hasStallTimes) {
        Meminfo memory = available(percent);
        memory.swapTotal = 1000;
        memory.swapFree = swapFree;
        return PressureLevel().update(memory, hasStallTimes ? std::optional(stalls) : std::nullopt,
                                      now);
    };
    EXPECT_EQ(levelOf(19.9, 99, false), 2);
    EXPECT_EQ(levelOf(20, 99, false), 1);
    EXPECT_EQ(levelOf(19.9, 100, false), 1);
    EXPECT_EQ(levelOf(19.9, 99, true), 1);
}

TEST_F(PressureLevelTest, DoesNotMistakeNoSwapForFullSwap) {
    Meminfo memory = available(15);
    memory.swapTotal = 0;
    memory.swapFree = 0;
    EXPECT_EQ(level.update(memory, std::nullopt, now), 1);
}

TEST_F(PressureLevelTest, GoesByTheStallTimesAloneWithoutMemoryFigures) {
    EXPECT_EQ(level.update(std::nullopt, stalls, now), 1);
    pass(2, 10, 10);
    EXPECT_EQ(level.update(std::nullopt, stalls, now), 4);
    PressureLevel other;
    EXPECT_EQ(other.update(Meminfo{}, stalls, now), 1);
}

TEST_F(PressureLevelTest, IsAbsentOnlyWhenNothingIsKnown) {
    EXPECT_EQ(with(3), 4);
    EXPECT_EQ(level.update(std::nullopt, std::nullopt, now), std::nullopt);
    EXPECT_EQ(level.update(Meminfo{}, std::nullopt, now), std::nullopt);
    Meminfo nothing = available(0);
    nothing.memTotal = 0;
    EXPECT_EQ(level.update(nothing, std::nullopt, now), std::nullopt);
    EXPECT_EQ(with(50), 4);  // still within its ten seconds
}

}  // namespace
}  // namespace zephrine
