// SPDX-License-Identifier: MIT
#include "app/SelfCheck.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <iostream>
#include <sstream>

#include "fakes/FakeGPURegistry.h"
#include "fakes/FakeHostCounters.h"
#include "fakes/FakeProcessTable.h"

namespace zephrine {
namespace {

class SelfCheckTest : public testing::Test {
protected:
    SelfCheckTest() {
        table.processes[1];
        table.processes[2];
        host.setUsed(10522669875);  // 9.8 GB
    }

    /// A self-test whose second is as busy as `busy` and `idle` ticks say.
    void run(std::uint32_t busy, std::uint32_t idle) {
        environment.sleepForTimeInterval = [this, busy, idle](double seconds) {
            calls.note("sleep");
            slept += seconds;
            host.advance(busy, idle);
        };
        selfCheck(environment);
    }
    /// The same, with the output where a death test looks.
    void runAloud(std::uint32_t busy, std::uint32_t idle) {
        static_cast<std::ostream&>(output).rdbuf(std::cerr.rdbuf());
        run(busy, idle);
    }

    CallLog calls;
    FakeHostCounters host{calls};
    FakeGPURegistry gpus{calls};
    FakeProcessTable table{calls};
    std::ostringstream output;
    double slept = 0;
    SelfCheckEnvironment environment{.host = host,
                                     .gpuRegistry = gpus,
                                     .processTable = table,
                                     .sleepForTimeInterval = {},
                                     .output = output,
                                     .errors = std::cerr};
};

using SelfCheckDeathTest = SelfCheckTest;

TEST(FixedChecks, AllHold) {
    EXPECT_EQ(fixedChecks().size(), 10U);
    for (const FixedCheck& check : fixedChecks()) {
        EXPECT_TRUE(check.holds()) << check.name;
    }
}

TEST_F(SelfCheckTest, RunsTheFixedChecksUnlessItIsGivenOthers) {
    EXPECT_EQ(environment.checks.data(), fixedChecks().data());
    EXPECT_EQ(environment.checks.size(), fixedChecks().size());
}

TEST_F(SelfCheckDeathTest, AFixedCheckThatFailsStopsItBeforeItHasReadOrPrintedAnything) {
    const std::array<FixedCheck, 2> checks{
        {{"holds", [] { return true; }}, {"fails", [] { return false; }}}};
    environment.checks = checks;
    const auto echoing = [this] {
        calls.echoTo(std::cerr);
        runAloud(1, 1);
    };
    EXPECT_DEATH(echoing(), "^$");
}

TEST_F(SelfCheckTest, TakesItsReadingsInTheirOrder) {
    gpus.addUtilization(7.0);
    run(1, 1);
    EXPECT_TRUE(
        calls.inOrder({"proc_listallpids", "proc_listallpids", "host_statistics", "sleep",
                       "host_statistics", "host_statistics64", "IORegistryEntryCreateCFProperty",
                       "memorystatus_vm_pressure_level"}));
}

TEST_F(SelfCheckTest, CountsTheProcessesOfTheOneCapture) {
    environment.sleepForTimeInterval = [this](double) {
        host.advance(1, 1);
        table.processes[3];
    };
    selfCheck(environment);
    EXPECT_NE(output.str().find("readable processes: 2\n"), std::string::npos);
}

TEST_F(SelfCheckTest, PrintsTheDetailsAndThenTheResult) {
    gpus.addUtilization(7.0);
    run(124, 876);
    EXPECT_EQ(output.str(),
              "GPU: 7%; memory pressure: Normal; readable processes: 2\n"
              "Checks passed. Live CPU: 12.4%, RAM: 61.2% (9.8 / 16.0 GB)\n");
}

TEST_F(SelfCheckTest, MeasuresOverOneSecond) {
    run(1, 1);
    EXPECT_EQ(slept, 1.0);
}

TEST_F(SelfCheckTest, PassesWithoutGPUAndWithUnknownPressure) {
    host.pressureLevel = std::nullopt;
    run(1, 1);
    EXPECT_EQ(output.str().substr(0, output.str().find('\n')),
              "GPU: unavailable; memory pressure: Unavailable; readable processes: 2");
}

TEST_F(SelfCheckDeathTest, StopsWithoutAWordWhenItIsNotAmongTheProcesses) {
    table.ownPid = 3;
    EXPECT_DEATH(runAloud(1, 1), "^$");
}

TEST_F(SelfCheckDeathTest, StopsWithoutAWordWhenNoProcessIsReadable) {
    table.processes.clear();
    EXPECT_DEATH(runAloud(1, 1), "^$");
}

TEST_F(SelfCheckDeathTest, ReportsAFatalErrorWhenTheCPUCannotBeRead) {
    EXPECT_DEATH(
        runAloud(0, 0),
        "^Zephrine/SelfCheck:37: Fatal error: Unable to read live CPU or RAM statistics\n$");
}

TEST_F(SelfCheckDeathTest, ReportsAFatalErrorWhenTheMemoryCannotBeRead) {
    host.statistics = std::nullopt;
    EXPECT_DEATH(
        runAloud(1, 1),
        "^Zephrine/SelfCheck:37: Fatal error: Unable to read live CPU or RAM statistics\n$");
}

constexpr LiveReadings plausible{.cpu = 12.4,
                                 .memory = {.used = 1, .total = 2},
                                 .gpu = 7,
                                 .pressure = MemoryPressure::warning,
                                 .processCount = 412};

TEST(LiveReadings, ArePrintedOnTwoLines) {
    std::ostringstream output;
    reportLiveReadings(plausible, output);
    EXPECT_EQ(output.str(),
              "GPU: 7%; memory pressure: Elevated; readable processes: 412\n"
              "Checks passed. Live CPU: 12.4%, RAM: 50.0% (0.0 / 0.0 GB)\n");
}

TEST(LiveReadings, MayLieAtTheEndsOfTheirRanges) {
    for (const double cpu : {0.0, 100.0}) {
        LiveReadings readings = plausible;
        readings.cpu = cpu;
        readings.memory.used = readings.memory.total;
        std::ostringstream output;
        reportLiveReadings(readings, output);
        EXPECT_NE(output.str().find("Checks passed"), std::string::npos) << cpu;
    }
}

TEST(LiveReadingsDeathTest, ThatCannotBeTrueStopTheProgramAfterTheDetails) {
    const char* detailsAlone = "^GPU: 7%; memory pressure: Elevated; readable processes: 412\n$";
    for (const double cpu : {-0.1, 100.1, std::nan("")}) {
        LiveReadings readings = plausible;
        readings.cpu = cpu;
        EXPECT_DEATH(reportLiveReadings(readings, std::cerr), detailsAlone) << cpu;
    }
    LiveReadings readings = plausible;
    readings.memory.used = 3;
    EXPECT_DEATH(reportLiveReadings(readings, std::cerr), detailsAlone);
}

}  // namespace
}  // namespace zephrine
