// SPDX-License-Identifier: MIT
#include "app/AppDelegate.h"

#include <gtest/gtest.h>

#include "app/ControllerTest.h"

namespace zephrine {
namespace {

using AppDelegateTest = ControllerTest;

TEST_F(AppDelegateTest, ReadsTheCountersAndTheClockThenUpdatesTheItemAndTheDashboard) {
    platform.gpus.addUtilization(5.0);
    launch({"--show-dashboard"});
    calls().clear();
    controller->refresh();
    EXPECT_TRUE(
        calls().inOrder({"host_statistics", "host_page_size", "host_statistics64",
                         "IORegistryEntryCreateCFProperty", "memorystatus_vm_pressure_level",
                         "systemUptime", "setToolTip", "setNeedsDisplay"}));
}

TEST_F(AppDelegateTest, EveryRefreshRecordsOneSample) {
    platform.gpus.addUtilization(5.0);
    platform.host.setUsed(4ULL << 30U);
    launch();
    platform.host.advance(30, 70);
    platform.host.uptime = 1001.5;
    loop().fire(1.0);
    EXPECT_EQ(controller->history.samples.back(),
              (HistorySample{.time = 1001.5, .cpu = 30, .ram = 25, .gpu = 5}));
    EXPECT_EQ(controller->latestCPU, 30.0);
    EXPECT_EQ(controller->latestGPU, 5.0);
    EXPECT_EQ(controller->latestPressure, MemoryPressure::normal);
}

TEST_F(AppDelegateTest, AnUnreadableMemoryLeavesTheOtherReadingsInTheSample) {
    platform.gpus.addUtilization(5.0);
    launch();
    platform.host.advance(30, 70);
    platform.host.statistics = std::nullopt;
    controller->refresh();
    const HistorySample& sample = controller->history.samples.back();
    EXPECT_EQ(sample.cpu, 30.0);
    EXPECT_EQ(sample.ram, std::nullopt);
    EXPECT_EQ(sample.gpu, 5.0);
}

TEST_F(AppDelegateTest, NeverCarriesAnOldReadingForward) {
    platform.gpus.addUtilization(5.0);
    launch();
    platform.host.advance(30, 70);
    controller->refresh();
    platform.host.ticks = std::nullopt;
    platform.host.statistics = std::nullopt;
    platform.host.pressureLevel = std::nullopt;
    platform.gpus.services[0].statistics = std::nullopt;
    controller->refresh();
    EXPECT_EQ(controller->latestCPU, std::nullopt);
    EXPECT_EQ(controller->latestMemory, std::nullopt);
    EXPECT_EQ(controller->latestGPU, std::nullopt);
    EXPECT_EQ(controller->latestPressure, MemoryPressure::unknown);
}

TEST_F(AppDelegateTest, RefreshesAtTheChosenIntervalWithSomeTolerance) {
    for (const double interval : {0.5, 1.0, 2.0, 5.0}) {
        platform.store.setDouble(interval, "refreshInterval");
        launch();
        ASSERT_EQ(loop().timers.size(), 1U);
        EXPECT_EQ(loop().timers.front().interval, interval);
        EXPECT_DOUBLE_EQ(loop().timers.front().tolerance, interval * 0.15);
        controller.reset();
    }
}

TEST_F(AppDelegateTest, ANewIntervalReplacesTheTimerAndDoesNotRefresh) {
    platform.store.setInteger(5, "refreshInterval");
    launch();
    platform.store.setDouble(0.5, "refreshInterval");
    calls().clear();
    controller->resetTimer();
    EXPECT_TRUE(calls().inOrder({"invalidate", "scheduleTimer"}));
    ASSERT_EQ(loop().timers.size(), 1U);
    EXPECT_EQ(loop().timers.front().interval, 0.5);
    EXPECT_EQ(controller->history.samples.size(), 1U);
}

TEST_F(AppDelegateTest, WakingUpDropsTheCPUBaselineAndRefreshesAtOnce) {
    launch();
    platform.host.advance(30, 70);
    controller->refresh();
    platform.host.advance(30, 70);
    controller->processRefresh->previousProcesses = ProcessSnapshot{};
    application().didWake();
    EXPECT_EQ(controller->latestCPU, std::nullopt);
    EXPECT_EQ(controller->history.samples.size(), 3U);
    EXPECT_EQ(controller->history.samples.back().cpu, std::nullopt);
    EXPECT_EQ(platform.gpus.lookUps, 2);
    EXPECT_FALSE(controller->processRefresh->previousProcesses.has_value());
    EXPECT_EQ(loop().timers.size(), 1U);

    platform.host.advance(50, 50);
    loop().fire(1.0);
    EXPECT_EQ(controller->latestCPU, 50.0);
}

TEST_F(AppDelegateTest, WakingUpFindsTheGPUsAgainBeforeItReadsThem) {
    platform.gpus.addUtilization(5.0);
    launch();
    calls().clear();
    application().didWake();
    EXPECT_TRUE(calls().inOrder(
        {"IOObjectRelease", "IOServiceGetMatchingServices", "IORegistryEntryCreateCFProperty"}));
    EXPECT_FALSE(calls().has("scheduleTimer"));
}

TEST_F(AppDelegateTest, EveryChangeOfAppearanceDrawsTheItemAgain) {
    launch();
    EXPECT_EQ(button().imagesSet, 1);
    calls().clear();
    application().themeChanged();
    EXPECT_EQ(button().imagesSet, 2);
    application().themeChanged();
    EXPECT_EQ(button().imagesSet, 3);
    EXPECT_FALSE(calls().has("host_statistics")) << "nothing new is measured";
}

TEST_F(AppDelegateTest, DoesNotTouchTheDashboardWhileItIsHidden) {
    launch();
    platform.host.advance(30, 70);
    controller->refresh();
    EXPECT_EQ(text(controller->dashboard->cpu), "—");
}

/// How often the dashboard's labels were written to and its graph was asked to draw.
int dashboardWork(const AppDelegate& controller) {
    int calls = fake<FakeCanvas>(controller.dashboard->history.canvas()).displaysNeeded;
    for (const FakeView* child : fake<FakeView>(controller.dashboard->view()).children) {
        const auto* label = dynamic_cast<const FakeLabel*>(child);
        calls += label != nullptr ? label->textsSet : 0;
    }
    return calls;
}

TEST_F(AppDelegateTest, DoesNoWorkForAHiddenDashboard) {
    launch({"--show-dashboard"});
    finishCapture();
    const int whileOpening = dashboardWork(*controller);
    EXPECT_GT(whileOpening, 10);
    loop().fire(1.0);
    EXPECT_GT(dashboardWork(*controller), whileOpening);

    popover().performClose();
    const int before = dashboardWork(*controller);
    calls().clear();
    for (int tick = 0; tick < 5; ++tick) {
        platform.host.advance(30, 70);
        loop().fire(1.0);
    }
    EXPECT_EQ(controller->history.samples.size(), 7U);
    EXPECT_EQ(dashboardWork(*controller), before);
    EXPECT_TRUE(worker().jobs.empty());
    EXPECT_FALSE(calls().has("proc_listallpids"));
    EXPECT_EQ(loop().timers.size(), 1U) << "that of the refreshes";
}

TEST_F(AppDelegateTest, UpdatesTheDashboardWhileThePopoverIsShown) {
    launch({"--show-dashboard"});
    platform.host.advance(30, 70);
    controller->refresh();
    EXPECT_EQ(text(controller->dashboard->cpu), "30%");
}

TEST_F(AppDelegateTest, TellsTheDashboardTheIntervalOfTheMoment) {
    launch({"--show-dashboard"});
    platform.store.setInteger(5, "refreshInterval");
    controller->refresh();
    EXPECT_EQ(text(controller->dashboard->cadence).substr(0, 16), "Updates every 5s");
}

TEST_F(AppDelegateTest, UpdatesTheDashboardOnlyWhileTheInspectionWindowIsVisible) {
    launch({"--inspect"});
    platform.host.advance(30, 70);
    controller->refresh();
    EXPECT_EQ(text(controller->dashboard->cpu), "30%");
    inspectionWindow().visible = false;
    platform.host.advance(50, 50);
    controller->refresh();
    EXPECT_EQ(text(controller->dashboard->cpu), "30%");
}

}  // namespace
}  // namespace zephrine
