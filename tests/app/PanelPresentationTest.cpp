// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "app/ControllerTest.h"

namespace zephrine {
namespace {

using PanelPresentationTest = ControllerTest;

TEST_F(PanelPresentationTest, ClicksOpenCloseAndOpenThePopover) {
    launch();
    button().action();
    EXPECT_TRUE(popover().shown);
    EXPECT_EQ(popover().anchor, &button());
    EXPECT_EQ(application().activations, 1);
    button().action();
    EXPECT_FALSE(popover().shown);
    button().action();
    EXPECT_TRUE(popover().shown);
}

TEST_F(PanelPresentationTest, OpensWithTheReadingsOfTheLastRefresh) {
    platform.host.setUsed(4ULL << 30U);
    platform.host.pressureLevel = 4;
    platform.gpus.addUtilization(5.0);
    platform.store.setInteger(2, "refreshInterval");
    launch();
    platform.host.advance(30, 70);
    controller->refresh();
    calls().clear();
    controller->showDashboard();
    EXPECT_EQ(text(controller->dashboard->cpu), "30%");
    EXPECT_EQ(text(controller->dashboard->ram), "25%");
    EXPECT_EQ(text(controller->dashboard->gpu), "5%");
    EXPECT_EQ(text(controller->dashboard->pressure), "●  Memory pressure: High");
    EXPECT_EQ(text(controller->dashboard->cadence).substr(0, 16), "Updates every 2s");
    EXPECT_EQ(controller->dashboard->history.samples(), controller->history.samples);
    EXPECT_FALSE(calls().has("host_statistics"));
    EXPECT_FALSE(calls().has("host_statistics64"));
}

TEST_F(PanelPresentationTest, UpdatesTheDashboardThenActivatesThenShowsThenListsProcesses) {
    launch();
    calls().clear();
    controller->showDashboard();
    EXPECT_TRUE(calls().inOrder({"setNeedsDisplay", "activateIgnoringOtherApps", "showRelativeTo",
                                 "perform", "scheduleTimer"}));
}

TEST_F(PanelPresentationTest, TheLaunchOptionOpensThePopoverAfterTheFirstRefresh) {
    platform.host.setUsed(4ULL << 30U);
    launch({"--show-dashboard"});
    EXPECT_TRUE(popover().shown);
    EXPECT_EQ(text(controller->dashboard->ram), "25%");
}

TEST_F(PanelPresentationTest, OptionsMatchAsWholeStringsOnly) {
    launch({"--Show-Dashboard", "-show-dashboard", "--show-dashboard=1", "--inspect=1", "x"});
    EXPECT_FALSE(popover().shown);
    EXPECT_TRUE(application().windowFactory.windows.empty());
}

TEST_F(PanelPresentationTest, OpeningTheProgramAgainShowsThePopoverOrLeavesItOpen) {
    launch();
    EXPECT_FALSE(controller->applicationShouldHandleReopen(false));
    EXPECT_TRUE(popover().shown);
    const auto generation = controller->processRefresh->processGeneration;
    EXPECT_FALSE(controller->applicationShouldHandleReopen(true));
    EXPECT_TRUE(popover().shown);
    EXPECT_EQ(controller->processRefresh->processGeneration, generation);
}

TEST_F(PanelPresentationTest, AnotherStartsOptionsDoWhatTheyDoAtLaunch) {
    launch();
    controller->performLaunchOption(LaunchOption::enableLogin);
    EXPECT_EQ(platform.login.registrations, 1);
    EXPECT_FALSE(popover().shown);
    controller->performLaunchOption(LaunchOption::showDashboard);
    EXPECT_TRUE(popover().shown);
    controller->performLaunchOption(LaunchOption::showSettings);
    EXPECT_FALSE(popover().shown);
    EXPECT_TRUE(application().windowFactory.windows.back()->visible);
    controller->performLaunchOption(LaunchOption::inspect);
    EXPECT_EQ(inspectionWindow().title, "Zephrine Dashboard");
    EXPECT_TRUE(inspectionWindow().visible);
}

TEST_F(PanelPresentationTest, InspectingAgainReplacesTheInspectionWindow) {
    launch({"--inspect"});
    controller->performLaunchOption(LaunchOption::inspect);
    EXPECT_EQ(&inspectionWindow(), controller->inspectionWindow.get());
    EXPECT_TRUE(inspectionWindow().visible);
}

TEST_F(PanelPresentationTest, AnItemWithoutAButtonShowsNothing) {
    application().bar.givesButton = false;
    launch();
    controller->showDashboard();
    EXPECT_FALSE(popover().shown);
    EXPECT_EQ(application().activations, 0);
}

TEST_F(PanelPresentationTest, NothingRunsForAPopoverThatCouldNotOpen) {
    launch();
    popover().itemIsHidden = true;
    button().action();
    EXPECT_FALSE(popover().shown);
    EXPECT_EQ(loop().timers.size(), 1U) << "the refresh timer alone";
    EXPECT_TRUE(worker().jobs.empty()) << "no process is looked at";
    popover().itemIsHidden = false;
    button().action();
    EXPECT_TRUE(popover().shown);
    EXPECT_EQ(loop().timers.size(), 2U);
}

TEST_F(PanelPresentationTest, AClosedPopoverLeavesTheRefreshTimerRunning) {
    launch({"--show-dashboard"});
    EXPECT_EQ(loop().timers.size(), 2U);
    popover().performClose();
    ASSERT_EQ(loop().timers.size(), 1U);
    EXPECT_EQ(loop().timers.front().interval, 1.0);
}

TEST_F(PanelPresentationTest, TheInspectionWindowIsAnOrdinaryCentredWindow) {
    launch({"--inspect"});
    FakeWindow& window = inspectionWindow();
    EXPECT_EQ(window.title, "Zephrine Dashboard");
    EXPECT_EQ(window.size, (Size{360, 660}));
    EXPECT_EQ(window.content, &controller->dashboard->view());
    EXPECT_EQ(application().activations, 1);
}

TEST_F(PanelPresentationTest, TheInspectionWindowComesToTheFrontBeforeTheApplicationDoes) {
    launch();
    calls().clear();
    controller->openInspectionWindow();
    EXPECT_TRUE(calls().inOrder({"setContentView Zephrine Dashboard", "center Zephrine Dashboard",
                                 "makeKeyAndOrderFront Zephrine Dashboard",
                                 "activateIgnoringOtherApps", "perform", "scheduleTimer"}));
}

TEST_F(PanelPresentationTest, TheInspectionWindowAloneGetsItsProcessListEveryTwoSeconds) {
    launch({"--inspect"});
    platform.table.processes[1].name = "first";
    finishCapture();
    EXPECT_EQ(text(*controller->dashboard->processNames[0]), "first");
    platform.table.processes[1].name = "second";
    loop().fire(2.0);
    finishCapture();
    EXPECT_EQ(text(*controller->dashboard->processNames[0]), "second");
}

}  // namespace
}  // namespace zephrine
