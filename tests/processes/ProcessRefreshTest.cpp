// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <limits>

#include "app/ControllerTest.h"

namespace zephrine {
namespace {

class ProcessRefreshTest : public ControllerTest {
protected:
    ProcessRefreshTest() {
        platform.table.processes[1].name = "worker";
        platform.table.clockStep = 100;
    }

    /// Lets every process use `time` units of CPU.
    void spend(std::uint64_t time) {
        for (auto& [pid, process] : platform.table.processes) {
            process.usage->ri_user_time += time;
        }
    }
    std::string firstName() { return text(*controller->dashboard->processNames[0]); }
    std::string firstValue() { return text(*controller->dashboard->processValues[0]); }
    bool isRunning() { return controller->processRefresh->processTimer != nullptr; }
    bool isInFlight() { return controller->processRefresh->processTask != nullptr; }
};

using ProcessRefreshDeathTest = ProcessRefreshTest;

TEST_F(ProcessRefreshDeathTest, AGenerationBeyondTheLastStopsTheProgram) {
    launch();
    controller->processRefresh->processGeneration = std::numeric_limits<std::int64_t>::max();
    EXPECT_DEATH(controller->processRefresh->startProcessUpdates(), "^$");
    EXPECT_DEATH(controller->popoverDidClose(), "^$");
}

TEST_F(ProcessRefreshTest, IsStoppedUntilThePanelOpens) {
    launch();
    EXPECT_FALSE(isRunning());
    EXPECT_FALSE(isInFlight());
    EXPECT_EQ(controller->processRefresh->processGeneration, 0);
    controller->processRefresh->refreshProcesses();
    EXPECT_TRUE(worker().jobs.empty());
}

TEST_F(ProcessRefreshTest, OpeningStartsACaptureAtOnceAndATwoSecondTimer) {
    launch({"--show-dashboard"});
    EXPECT_TRUE(isInFlight());
    EXPECT_EQ(worker().jobs.size(), 1U);
    ASSERT_TRUE(isRunning());
    EXPECT_EQ(loop().timers.back().interval, 2.0);
    EXPECT_EQ(loop().timers.back().tolerance, 0.0);
}

TEST_F(ProcessRefreshTest, StartingAgainDropsTheBaselineRefreshesAndReplacesTheTimer) {
    launch({"--show-dashboard"});
    finishCapture();
    calls().clear();
    controller->openInspectionWindow();
    EXPECT_FALSE(controller->processRefresh->previousProcesses.has_value());
    EXPECT_TRUE(calls().inOrder({"perform", "invalidate", "scheduleTimer"}));
}

TEST_F(ProcessRefreshTest, TheFirstListHasNoSharesAndTheNextOneHas) {
    launch({"--show-dashboard"});
    EXPECT_EQ(firstName(), "Measuring…");
    finishCapture();
    EXPECT_EQ(firstName(), "worker");
    EXPECT_EQ(firstValue(), "—");
    EXPECT_FALSE(isInFlight());

    spend(40);
    loop().fire(2.0);
    finishCapture();
    EXPECT_EQ(firstValue(), "10.0%");  // 40 of 100 units on four processors
}

TEST_F(ProcessRefreshTest, CountsTheProcessorsOfTheMoment) {
    launch({"--show-dashboard"});
    finishCapture();
    spend(40);
    loop().fire(2.0);
    platform.host.processors = 2;
    finishCapture();
    EXPECT_EQ(firstValue(), "20.0%");
}

TEST_F(ProcessRefreshTest, CapturesNeverOverlap) {
    launch({"--show-dashboard"});
    loop().fire(2.0);
    loop().fire(2.0);
    EXPECT_EQ(worker().jobs.size(), 1U);
    finishCapture();
    loop().fire(2.0);
    EXPECT_EQ(worker().jobs.size(), 1U);
}

TEST_F(ProcessRefreshTest, TheCaptureRunsOnTheWorkerAndComesBackToTheMainThread) {
    launch({"--show-dashboard"});
    EXPECT_FALSE(calls().has("proc_listallpids"));
    worker().release();
    EXPECT_TRUE(calls().has("proc_listallpids"));
    EXPECT_TRUE(isInFlight());
    EXPECT_EQ(firstName(), "Measuring…");
    loop().drain();
    EXPECT_FALSE(isInFlight());
    EXPECT_EQ(firstName(), "worker");
}

TEST_F(ProcessRefreshTest, ClosingStopsEverything) {
    launch({"--show-dashboard"});
    finishCapture();
    loop().fire(2.0);
    const auto task = controller->processRefresh->processTask;
    const auto generation = controller->processRefresh->processGeneration;
    popover().performClose();
    EXPECT_TRUE(task->isCancelled);
    EXPECT_FALSE(isRunning());
    EXPECT_FALSE(isInFlight());
    EXPECT_FALSE(controller->processRefresh->previousProcesses.has_value());
    EXPECT_EQ(controller->processRefresh->processGeneration, generation + 1);
}

TEST_F(ProcessRefreshTest, ACaptureThatFinishesAfterClosingIsNeverUsed) {
    launch({"--show-dashboard"});
    popover().performClose();
    finishCapture();
    EXPECT_EQ(firstName(), "Measuring…");
    EXPECT_FALSE(controller->processRefresh->previousProcesses.has_value());
    EXPECT_FALSE(isInFlight());
}

TEST_F(ProcessRefreshTest, ACaptureOfAnEarlierOpeningIsDroppedAndLeavesTheNewOneAlone) {
    launch({"--show-dashboard"});
    popover().performClose();
    controller->showDashboard();
    ASSERT_EQ(worker().jobs.size(), 2U);
    platform.table.processes[1].name = "old";
    finishCapture();
    EXPECT_TRUE(isInFlight());
    EXPECT_EQ(firstName(), "Measuring…");
    EXPECT_FALSE(controller->processRefresh->previousProcesses.has_value());
    platform.table.processes[1].name = "new";
    finishCapture();
    EXPECT_EQ(firstName(), "new");
    EXPECT_FALSE(isInFlight());
}

TEST_F(ProcessRefreshTest, ReopeningStartsWithoutABaseline) {
    launch({"--show-dashboard"});
    finishCapture();
    popover().performClose();
    controller->showDashboard();
    spend(40);
    finishCapture();
    EXPECT_EQ(firstValue(), "—");
}

TEST_F(ProcessRefreshTest, ACaptureThatFinishesWhileThePanelIsHiddenIsDropped) {
    launch({"--inspect"});
    inspectionWindow().visible = false;
    finishCapture();
    EXPECT_EQ(firstName(), "Measuring…");
    EXPECT_FALSE(controller->processRefresh->previousProcesses.has_value());
    EXPECT_FALSE(isInFlight());
}

TEST_F(ProcessRefreshTest, ACancelledCaptureIsDroppedAndClearsItsTask) {
    launch({"--show-dashboard"});
    controller->processRefresh->processTask->isCancelled = true;
    finishCapture();
    EXPECT_EQ(firstName(), "Measuring…");
    EXPECT_FALSE(isInFlight());
}

TEST_F(ProcessRefreshTest, TicksOfAClosedInspectionWindowDoNothing) {
    launch({"--inspect"});
    finishCapture();
    inspectionWindow().visible = false;
    loop().fire(2.0);
    EXPECT_TRUE(worker().jobs.empty());
    EXPECT_TRUE(isRunning());
    inspectionWindow().visible = true;
    loop().fire(2.0);
    EXPECT_EQ(worker().jobs.size(), 1U);
}

TEST_F(ProcessRefreshTest, BothHostsTogetherStallTheListUntilThePanelCloses) {
    launch({"--show-dashboard"});
    calls().clear();
    controller->openInspectionWindow();
    EXPECT_TRUE(calls().inOrder({"invalidate", "scheduleTimer"}));
    EXPECT_EQ(loop().timers.size(), 2U) << "of the refreshes and of the list";
    EXPECT_EQ(worker().jobs.size(), 1U);
    finishCapture();  // of the generation before: stale
    EXPECT_TRUE(isInFlight());
    EXPECT_EQ(firstName(), "Measuring…");
    loop().fire(2.0);
    EXPECT_TRUE(worker().jobs.empty());
    popover().performClose();
    EXPECT_FALSE(isInFlight());
    controller->showDashboard();
    finishCapture();
    EXPECT_EQ(firstName(), "worker");
}

TEST_F(ProcessRefreshTest, WakingUpTakesTheBaselineAway) {
    launch({"--show-dashboard"});
    finishCapture();
    application().didWake();
    spend(40);
    loop().fire(2.0);
    finishCapture();
    EXPECT_EQ(firstValue(), "—");
    spend(40);
    loop().fire(2.0);
    finishCapture();
    EXPECT_EQ(firstValue(), "10.0%");
}

TEST_F(ProcessRefreshTest, ACaptureThatIsGivenUpTakesTheRowsAwayAndTheNextOneBringsThemBack) {
    launch({"--show-dashboard"});
    finishCapture();
    loop().fire(2.0);
    worker().giveUp();
    loop().drain();
    EXPECT_FALSE(isInFlight());
    EXPECT_EQ(firstName(), "No readable processes");
    EXPECT_FALSE(controller->processRefresh->previousProcesses.has_value());
    spend(40);
    loop().fire(2.0);
    finishCapture();
    EXPECT_EQ(firstName(), "worker");
    EXPECT_EQ(firstValue(), "—");
}

TEST_F(ProcessRefreshTest, ACaptureOfAnEarlierOpeningThatIsGivenUpLeavesTheNewOneAlone) {
    launch({"--show-dashboard"});
    popover().performClose();
    controller->showDashboard();
    worker().giveUp();
    loop().drain();
    EXPECT_TRUE(isInFlight());
    EXPECT_EQ(firstName(), "Measuring…");
    finishCapture();
    EXPECT_EQ(firstName(), "worker");
}

TEST_F(ProcessRefreshTest, ACaptureThatIsGivenUpAfterClosingChangesNothing) {
    launch({"--show-dashboard"});
    popover().performClose();
    worker().giveUp();
    loop().drain();
    EXPECT_EQ(firstName(), "Measuring…");
    EXPECT_FALSE(isInFlight());
}

TEST_F(ProcessRefreshTest, AResultThatOutlivesTheControllerIsDropped) {
    launch({"--show-dashboard"});
    worker().release();
    controller.reset();
    loop().drain();
    EXPECT_TRUE(loop().mainQueue.empty());
}

}  // namespace
}  // namespace zephrine
