// SPDX-License-Identifier: MIT
#include "app/SelfCheck.h"

#include <gtest/gtest.h>

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
        selfCheck({.host = host,
                   .gpuRegistry = gpus,
                   .processTable = table,
                   .sleepForTimeInterval =
                       [this, busy, idle](double seconds) {
                           slept += seconds;
                           host.advance(busy, idle);
                       },
                   .output = output,
                   .errors = std::cerr});
    }

    FakeHostCounters host;
    FakeGPURegistry gpus;
    FakeProcessTable table;
    std::ostringstream output;
    double slept = 0;
};

using SelfCheckDeathTest = SelfCheckTest;

TEST(FixedChecks, AllHold) {
    EXPECT_EQ(fixedChecks().size(), 10U);
    for (const FixedCheck& check : fixedChecks()) {
        EXPECT_TRUE(check.holds()) << check.name;
    }
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
    EXPECT_DEATH(run(1, 1), "^$");
}

TEST_F(SelfCheckDeathTest, StopsWithoutAWordWhenNoProcessIsReadable) {
    table.processes.clear();
    EXPECT_DEATH(run(1, 1), "^$");
}

TEST_F(SelfCheckDeathTest, ReportsAFatalErrorWhenTheCPUCannotBeRead) {
    host.ticks = std::nullopt;
    EXPECT_DEATH(
        selfCheck({host, gpus, table, [](double) {}, output, std::cerr}),
        "^Zephrine/SelfCheck:37: Fatal error: Unable to read live CPU or RAM statistics\n$");
}

TEST_F(SelfCheckDeathTest, ReportsAFatalErrorWhenTheMemoryCannotBeRead) {
    host.statistics = std::nullopt;
    EXPECT_DEATH(run(1, 1), "Unable to read live CPU or RAM statistics");
}

}  // namespace
}  // namespace zephrine
