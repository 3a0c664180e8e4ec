// SPDX-License-Identifier: MIT
// What happens when launching finishes, and in which order.
#include <gtest/gtest.h>

#include <csignal>

#include "app/ControllerTest.h"

namespace zephrine {
namespace {

using LaunchTest = ControllerTest;
using LaunchDeathTest = ControllerTest;

TEST_F(LaunchTest, IsPrecededByNothingButTheControllersFirstState) {
    prepare();
    EXPECT_EQ(controller->statusItem, nullptr);
    EXPECT_EQ(controller->timer, nullptr);
    EXPECT_EQ(controller->settingsWindow, nullptr);
    EXPECT_EQ(controller->inspectionWindow, nullptr);
    EXPECT_EQ(controller->lastImageKey, "");
    EXPECT_EQ(controller->latestCPU, std::nullopt);
    EXPECT_EQ(controller->latestMemory, std::nullopt);
    EXPECT_EQ(controller->latestGPU, std::nullopt);
    EXPECT_EQ(controller->latestPressure, MemoryPressure::unknown);
    EXPECT_TRUE(controller->history.samples.empty());
}

TEST_F(LaunchTest, PutsAnItemIntoTheStatusBar) {
    launch();
    EXPECT_EQ(application().bar.lengths.front(), 74.0);
    EXPECT_EQ(application().bar.autosaveName, "Zephrine");
    button().action();
    EXPECT_TRUE(popover().shown);
}

TEST_F(LaunchDeathTest, CannotLaunchWithoutAnItem) {
    application().bar.givesItem = false;
    EXPECT_EXIT(launch(), testing::KilledBySignal(SIGABRT), "^$");
}

TEST_F(LaunchDeathTest, NothingCanBeShownBeforeLaunch) {
    prepare();
    EXPECT_EXIT(controller->updateStatusItem(), testing::KilledBySignal(SIGABRT), "^$");
    EXPECT_EXIT(controller->showDashboard(), testing::KilledBySignal(SIGABRT), "^$");
}

TEST_F(LaunchTest, HandsTheDashboardToThePopover) {
    launch();
    EXPECT_EQ(popover().content, &controller->dashboard->view());
    EXPECT_EQ(popover().size, (Size{360, 660}));
}

TEST_F(LaunchTest, RefreshesOnceWithoutACPUReading) {
    launch();
    ASSERT_EQ(controller->history.samples.size(), 1U);
    EXPECT_EQ(controller->history.samples[0].cpu, std::nullopt);
    EXPECT_TRUE(controller->history.samples[0].ram.has_value());
}

TEST_F(LaunchTest, GoesFromTheItemOverTheObserversToTheTimerAndTheFirstRefresh) {
    launch();
    EXPECT_TRUE(
        calls().inOrder({"statusItemWithLength", "setAutosaveName", "setAction", "make segments",
                         "setContentView", "setContentSize", "setDidCloseHandler", "observeDidWake",
                         "observeThemeChanged", "scheduleTimer", "host_statistics"}));
}

TEST_F(LaunchTest, ActsOnAllOptionsInItsOwnOrderAfterTheFirstRefresh) {
    launch({"--inspect", "--show-settings", "--show-dashboard", "--enable-login"});
    EXPECT_TRUE(calls().inOrder({"host_statistics", "registerItem", "showRelativeTo",
                                 "makeKeyAndOrderFront Zephrine Settings",
                                 "makeKeyAndOrderFront Zephrine Dashboard"}));
}

TEST_F(LaunchTest, ActsOnAnOptionOnceHoweverOftenItIsGiven) {
    launch({"--enable-login", "--inspect", "--enable-login", "--inspect"});
    EXPECT_EQ(platform.login.registrations, 1);
    EXPECT_EQ(application().windowFactory.windows.size(), 1U);
}

TEST_F(LaunchTest, WritesNoPreference) {
    launch({"--show-dashboard", "--show-settings", "--inspect"});
    EXPECT_TRUE(platform.store.values.empty());
}

}  // namespace
}  // namespace zephrine
