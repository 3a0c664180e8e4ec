// SPDX-License-Identifier: MIT
#include "sampling/History.h"

#include <gtest/gtest.h>

namespace zephrine {
namespace {

HistorySample at(double time) {
    return {.time = time, .cpu = 20, .ram = 50, .gpu = {}};
}

TEST(History, KeepsTheSamplesOfFiveMinutesBothEndsIncluded) {
    History history;
    for (int i = 0; i <= 1000; ++i) {
        history.append(at(i));
    }
    ASSERT_EQ(history.samples.size(), 301U);
    EXPECT_EQ(history.samples.front().time, 700.0);
    EXPECT_EQ(history.samples.back().time, 1000.0);
}

TEST(History, KeepsTheNewest601WhenSamplesComeFaster) {
    History history;
    for (int i = 0; i < 1000; ++i) {
        history.append(at(i * 0.1));
    }
    ASSERT_EQ(history.samples.size(), 601U);
    EXPECT_EQ(history.samples.front(), at(399 * 0.1));
    EXPECT_EQ(history.samples.back(), at(999 * 0.1));
}

TEST(History, DropsEverythingOlderThanAJumpInTime) {
    History history;
    history.append(at(1));
    history.append(at(2));
    history.append(at(302.5));
    ASSERT_EQ(history.samples.size(), 1U);
    EXPECT_EQ(history.samples.front().time, 302.5);
}

TEST(History, MeasuresAgeFromTheSampleAppendedLast) {
    History history;
    history.append(at(1000));
    history.append(at(500));
    history.append(at(799));
    ASSERT_EQ(history.samples.size(), 3U);
    EXPECT_EQ(history.samples[0].time, 1000.0);
    EXPECT_EQ(history.samples[1].time, 500.0);

    history.append(at(801));
    ASSERT_EQ(history.samples.size(), 3U);
    EXPECT_EQ(history.samples[0].time, 1000.0);
    EXPECT_EQ(history.samples[1].time, 799.0);
    EXPECT_EQ(history.samples[2].time, 801.0);
}

TEST(History, DropsByAgeBeforeItDropsByCount) {
    History history;
    history.samples.assign(601, at(1000));
    history.samples[300] = at(699);
    history.append(at(1000));
    EXPECT_EQ(history.samples, std::vector<HistorySample>(601, at(1000)));
}

TEST(History, StoresAbsentValuesAsAbsentAndKeepsThemAsLong) {
    History history;
    history.append({.time = 1, .cpu = {}, .ram = {}, .gpu = {}});
    EXPECT_EQ(history.samples.front(), (HistorySample{.time = 1, .cpu = {}, .ram = {}, .gpu = {}}));
    history.append({.time = 301, .cpu = {}, .ram = {}, .gpu = {}});
    EXPECT_EQ(history.samples.size(), 2U);
    history.append({.time = 302, .cpu = {}, .ram = {}, .gpu = {}});
    ASSERT_EQ(history.samples.size(), 2U);
    EXPECT_EQ(history.samples.front().time, 301.0);
}

}  // namespace
}  // namespace zephrine
