// SPDX-License-Identifier: MIT
#include "platform/linux/counters/ProcStat.h"

#include <gtest/gtest.h>

#include <tuple>

#include "platform/linux/Captured.h"
#include "platform/linux/FakeTree.h"

namespace zephrine {
namespace {

using testing::captured;
using Figures = std::tuple<std::uint64_t, std::uint64_t, std::uint64_t, std::uint64_t>;

/// User, system, idle and nice of a text that must be readable.
Figures figures(std::string_view stat) {
    const auto ticks = parseProcessorTicks(stat);
    if (!ticks) {
        ADD_FAILURE() << "no ticks in: " << stat.substr(0, 100);
        return {};
    }
    return {ticks->user, ticks->system, ticks->idle, ticks->nice};
}

TEST(ProcStat, CountsInterruptsAndStolenTimeAsSystemAndWaitingAsIdle) {
    EXPECT_EQ(figures("cpu  1 2 4 8 16 32 64 128 256 512\n"),
              Figures(1, 4 + 32 + 64 + 128, 8 + 16, 2));
    EXPECT_EQ(figures(captured("stat/s390-with-stolen-time")), Figures(1000, 1750, 7200, 50));
}

TEST(ProcStat, ReadsTheCapturedMachine) {
    const std::string text = captured("stat/debian-vm");
    const auto [user, system, idle, nice] = figures(text);
    EXPECT_GT(user, 0U);
    EXPECT_GT(system, 0U);
    EXPECT_GT(idle, user + system + nice);  // it was captured soon after the start
    EXPECT_EQ(countProcessors(text), 2);
}

TEST(ProcStat, ReadsTheFourColumnsOfOldKernels) {
    const std::string text = captured("stat/kernel-2.4");
    EXPECT_EQ(figures(text), Figures(4321, 1234, 98765, 12));
    EXPECT_EQ(countProcessors(text), 1);
}

TEST(ProcStat, CountsOnlineProcessorsWhateverTheirNumbers) {
    EXPECT_EQ(countProcessors(captured("stat/laptop-with-offline-processors")), 3);
    EXPECT_EQ(countProcessors(captured("stat/lxcfs-container")), 2);
    EXPECT_EQ(countProcessors(captured("stat/server-256-processors")), 256);
}

TEST(ProcStat, NeedsNoMoreThanTheFirstLineForTheTicks) {
    const std::string text = captured("stat/server-256-processors");
    EXPECT_EQ(figures(text.substr(0, text.find('\n') + 1)), figures(text));
}

TEST(ProcStat, KnowsNoCountWhenTheTextEndsAmongTheProcessors) {
    const std::string text = captured("stat/server-256-processors");
    EXPECT_EQ(countProcessors(text.substr(0, 4096)), std::nullopt);
    EXPECT_EQ(countProcessors("cpu  1 2 3 4\ncpu0 1 2 3 4\n"), std::nullopt);
    EXPECT_EQ(countProcessors(""), std::nullopt);
    EXPECT_EQ(countProcessors("intr 0\n"), std::nullopt);
}

TEST(ProcStat, DoesNotTakePartOfANumberForAllOfIt) {
    const std::string text = captured("stat/hostile-truncated");
    EXPECT_EQ(parseProcessorTicks(text), std::nullopt);
    EXPECT_EQ(countProcessors(text), std::nullopt);
}

TEST(ProcStat, IsAbsentForTextThatNoKernelWrites) {
    for (const char* name :
         {"empty", "negative", "beyond-64-bits", "sum-beyond-64-bits", "nul-bytes", "words"}) {
        EXPECT_EQ(parseProcessorTicks(captured(std::string("stat/hostile-") + name)), std::nullopt)
            << name;
    }
    EXPECT_EQ(parseProcessorTicks("cpu  1 2 3\n"), std::nullopt);
    EXPECT_EQ(parseProcessorTicks("cpu\n"), std::nullopt);
}

TEST(ProcStat, TakesTheFirstOfTwoLinesAndFindsALateOne) {
    EXPECT_EQ(figures(captured("stat/hostile-duplicated")), Figures(10, 30, 40, 20));
    EXPECT_EQ(figures(captured("stat/hostile-reordered")), Figures(5, 7, 8, 6));
}

TEST(ProcStat, GetsThroughTenMegabytes) {
    const std::string noise(std::size_t{10} << 20U, 'x');
    EXPECT_EQ(parseProcessorTicks(noise), std::nullopt);
    EXPECT_EQ(countProcessors(noise), std::nullopt);
    EXPECT_EQ(figures(noise + "\ncpu  1 2 3 4\n"), Figures(1, 3, 4, 2));
}

}  // namespace
}  // namespace zephrine
