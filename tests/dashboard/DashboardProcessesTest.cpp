// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <csignal>

#include "dashboard/Dashboard.h"
#include "fakes/FakePlatform.h"

namespace zephrine {
namespace {

using testing::ElementsAre;

class DashboardProcessesTest : public testing::Test {
protected:
    DashboardProcessesTest() { dashboard.loadView(); }

    std::vector<std::string> names() { return texts(dashboard.processNames); }
    std::vector<std::string> values() { return texts(dashboard.processValues); }
    std::string toolTip(std::size_t row) {
        return fake<FakeLabel>(*dashboard.processNames[row]).toolTip;
    }
    FakeSegmentedControl& sort() { return fake<FakeSegmentedControl>(*dashboard.processSort); }

    static std::vector<std::string> texts(const std::vector<std::unique_ptr<Label>>& labels) {
        std::vector<std::string> all;
        all.reserve(labels.size());
        for (const auto& label : labels) {
            all.push_back(label->stringValue());
        }
        return all;
    }

    FakePlatform platform;
    Dashboard dashboard{platform.application, platform.texts};
};

using DashboardProcessesDeathTest = DashboardProcessesTest;

TEST_F(DashboardProcessesTest, AnEmptyDeliverySaysSo) {
    dashboard.updateProcesses({});
    EXPECT_THAT(names(), ElementsAre("No readable processes", "", "", "", ""));
    EXPECT_THAT(values(), ElementsAre("", "", "", "", ""));
}

TEST_F(DashboardProcessesTest, RanksByCPUShareWithTheHighestFirst) {
    dashboard.updateProcesses(
        {{1, "a", 1.0, 0}, {2, "b", 99.96, 0}, {3, "c", 12.34, 0}, {4, "d", 100.0, 0}});
    EXPECT_THAT(names(), ElementsAre("d", "b", "c", "a", ""));
    EXPECT_THAT(values(), ElementsAre("100.0%", "100.0%", "12.3%", "1.0%", ""));
}

TEST_F(DashboardProcessesTest, ShowsNoMoreThanFive) {
    std::vector<ProcessUsage> rows;
    for (int i = 1; i <= 7; ++i) {
        rows.push_back({i, std::to_string(i), static_cast<double>(i), 0});
    }
    dashboard.updateProcesses(rows);
    EXPECT_THAT(names(), ElementsAre("7", "6", "5", "4", "3"));
    EXPECT_EQ(dashboard.processRows, rows);
}

TEST_F(DashboardProcessesTest, AShareOfZeroRanksAboveAnUnknownOne) {
    dashboard.updateProcesses({{1, "unknown", {}, 0}, {2, "zero", 0.0, 0}});
    EXPECT_THAT(names(), ElementsAre("zero", "unknown", "", "", ""));
    EXPECT_THAT(values(), ElementsAre("0.0%", "—", "", "", ""));
}

TEST_F(DashboardProcessesTest, RowsThatTieKeepTheirOrder) {
    dashboard.updateProcesses({{1, "a", {}, 1}, {2, "b", {}, 2}, {3, "c", {}, 3}});
    EXPECT_THAT(names(), ElementsAre("a", "b", "c", "", ""));
    EXPECT_THAT(values(), ElementsAre("—", "—", "—", "", ""));
}

TEST_F(DashboardProcessesTest, ManyRowsThatTieKeepTheirOrderInEitherRanking) {
    std::vector<ProcessUsage> rows;
    for (int i = 1; i <= 100; ++i) {
        rows.push_back({i, std::to_string(i), 1.0, 10});
    }
    rows.push_back({101, "first", 2.0, 20});
    dashboard.updateProcesses(rows);
    EXPECT_THAT(names(), ElementsAre("first", "1", "2", "3", "4"));
    sort().click(1);
    EXPECT_THAT(names(), ElementsAre("first", "1", "2", "3", "4"));
}

TEST_F(DashboardProcessesTest, SwitchingToMemoryRanksTheRowsAlreadyHeld) {
    dashboard.updateProcesses({{1, "a", 50.0, 10}, {2, "b", {}, 30}, {3, "c", 1.0, 20}});
    sort().click(1);
    EXPECT_THAT(names(), ElementsAre("b", "c", "a", "", ""));
    EXPECT_THAT(values(), ElementsAre("30 bytes", "20 bytes", "10 bytes", "", ""));
    sort().click(0);
    EXPECT_THAT(names(), ElementsAre("a", "c", "b", "", ""));
}

TEST_F(DashboardProcessesTest, AnyOtherSegmentOrNoneRanksByCPU) {
    for (const int segment : {-1, 2}) {
        sort().selected = segment;
        dashboard.updateProcesses({{1, "a", 1.0, 20}, {2, "b", 2.0, 10}});
        EXPECT_THAT(names(), ElementsAre("b", "a", "", "", ""));
    }
}

TEST_F(DashboardProcessesTest, AFootprintBeyondTheFormatterIsCut) {
    sort().selected = 1;
    dashboard.updateProcesses({{1, "small", {}, 1}, {2, "large", {}, ~0ULL}});
    EXPECT_EQ(names()[0], "large");
    EXPECT_EQ(values()[0], "9223372036854775807 bytes");
}

TEST_F(DashboardProcessesTest, TheToolTipNamesThePidAndOutlivesItsRow) {
    dashboard.updateProcesses({{1, "Test", 2.0, 0}, {4711, "Other", 1.0, 0}});
    EXPECT_EQ(toolTip(0), "Test · PID 1");
    EXPECT_EQ(toolTip(1), "Other · PID 4711");
    dashboard.updateProcesses({{1, "Test", 2.0, 0}});
    EXPECT_EQ(names()[1], "");
    EXPECT_EQ(values()[1], "");
    EXPECT_EQ(toolTip(1), "Other · PID 4711");
}

TEST_F(DashboardProcessesDeathTest, RankingBeforeTheViewWasBuiltStopsTheProgram) {
    Dashboard early(platform.application, platform.texts);
    EXPECT_EXIT(early.sortProcesses(), testing::KilledBySignal(SIGABRT), "^$");
}

TEST_F(DashboardProcessesDeathTest, RankingIntoTooFewLabelsStopsTheProgram) {
    auto name = std::move(dashboard.processNames.back());
    dashboard.processNames.pop_back();
    EXPECT_EXIT(dashboard.sortProcesses(), testing::KilledBySignal(SIGABRT), "^$");
    dashboard.processNames.push_back(std::move(name));
    dashboard.processValues.pop_back();
    EXPECT_EXIT(dashboard.sortProcesses(), testing::KilledBySignal(SIGABRT), "^$");
}

}  // namespace
}  // namespace zephrine
