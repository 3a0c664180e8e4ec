// SPDX-License-Identifier: MIT
#include "processes/ProcessSnapshot.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <iostream>

#include "fakes/FakeProcessTable.h"

namespace zephrine {
namespace {

using testing::ElementsAre;

ProcessReading reading(std::uint64_t cpuTime, std::uint64_t clock, std::uint64_t startTime = 1) {
    return {.pid = 1,
            .name = "Test",
            .startTime = startTime,
            .cpuTime = cpuTime,
            .clock = clock,
            .memory = 100};
}

ProcessSnapshot snapshot(const ProcessReading& only) {
    return {.processes = {{only.pid, only}}};
}

std::optional<double> share(const ProcessReading& old, const ProcessReading& current, int cores) {
    const auto rows = snapshot(current).usage(snapshot(old), cores);
    EXPECT_EQ(rows.size(), 1U);
    return rows.at(0).cpu;
}

TEST(ProcessUsage, IsTheShareOfAllCores) {
    EXPECT_EQ(share(reading(24000000, 240000000), reading(48000000, 264000000), 10), 10.0);
}

TEST(ProcessUsage, DividesByTheTimeThenByTheCoresAndMultipliesLast) {
    // Every other order of these operations gives 1.1111111111111112.
    EXPECT_EQ(share(reading(0, 0), reading(1, 9), 10), 1.111111111111111);
}

TEST(ProcessUsage, CarriesPidNameAndMemoryOfTheCurrentReading) {
    const auto rows = snapshot(reading(0, 10)).usage(std::nullopt, 4);
    EXPECT_THAT(rows,
                ElementsAre(ProcessUsage{.pid = 1, .name = "Test", .cpu = {}, .memory = 100}));
}

TEST(ProcessUsage, IsZeroNotAbsentForAProcessThatUsedNothing) {
    EXPECT_EQ(share(reading(5, 10), reading(5, 20), 4), 0.0);
}

TEST(ProcessUsage, IsAbsentForAReusedPid) {
    EXPECT_EQ(share(reading(24000000, 240000000, 1), reading(48000000, 264000000, 2), 10),
              std::nullopt);
}

TEST(ProcessUsage, IsAbsentWhenTheClockDidNotAdvance) {
    EXPECT_EQ(share(reading(5, 10), reading(5, 10), 10), std::nullopt);
    EXPECT_EQ(share(reading(5, 10), reading(5, 9), 10), std::nullopt);
}

TEST(ProcessUsage, IsAbsentWhenTheCPUTimeWentBack) {
    EXPECT_EQ(share(reading(6, 10), reading(5, 20), 10), std::nullopt);
}

TEST(ProcessUsage, IsAbsentWithoutCores) {
    EXPECT_EQ(share(reading(5, 10), reading(6, 20), 0), std::nullopt);
    EXPECT_EQ(share(reading(5, 10), reading(6, 20), -1), std::nullopt);
}

TEST(ProcessUsage, OfASingleCoreIsTheShareOfThatCore) {
    EXPECT_EQ(share(reading(5, 10), reading(10, 20), 1), 50.0);
}

TEST(ProcessUsage, IsCappedAtTheWholeMachine) {
    EXPECT_EQ(share(reading(0, 0), reading(1000, 10), 4), 100.0);
}

TEST(ProcessUsage, IsAbsentWithoutAnEarlierCapture) {
    EXPECT_EQ(snapshot(reading(5, 10)).usage(std::nullopt, 4).at(0).cpu, std::nullopt);
}

TEST(ProcessUsage, IsAbsentForANewProcessAndHasNoRowForOneThatIsGone) {
    ProcessReading other = reading(5, 10);
    other.pid = 2;
    const auto rows = snapshot(other).usage(snapshot(reading(5, 5)), 4);
    ASSERT_EQ(rows.size(), 1U);
    EXPECT_EQ(rows[0].pid, 2);
    EXPECT_EQ(rows[0].cpu, std::nullopt);
}

TEST(ProcessUsage, OfAnEmptyCaptureIsEmpty) {
    EXPECT_TRUE(ProcessSnapshot{}.usage(snapshot(reading(5, 5)), 4).empty());
}

TEST(ProcessCapture, ReadsEveryProcessWithItsOwnClock) {
    FakeProcessTable table;
    table.processes[7].usage = rusage_info_v2{
        .ri_user_time = 3, .ri_system_time = 4, .ri_phys_footprint = 5, .ri_proc_start_abstime = 6};
    table.processes[7].name = "seven";
    table.processes[8];
    const auto captured = ProcessSnapshot::capture(table);
    ASSERT_EQ(captured.processes.size(), 2U);
    const ProcessReading& seven = captured.processes.at(7);
    EXPECT_EQ(seven.pid, 7);
    EXPECT_EQ(seven.name, "seven");
    EXPECT_EQ(seven.startTime, 6U);
    EXPECT_EQ(seven.cpuTime, 7U);
    EXPECT_EQ(seven.memory, 5U);
    EXPECT_EQ(seven.clock, 1001U);
    EXPECT_EQ(captured.processes.at(8).clock, 1002U);
}

TEST(ProcessCapture, LooksAtTheClockRightAfterTheUsage) {
    FakeProcessTable table;
    table.processes[7];
    ProcessSnapshot::capture(table);
    EXPECT_THAT(table.calls.all(),
                ElementsAre("proc_listallpids", "proc_listallpids", "proc_pid_rusage",
                            "mach_absolute_time", "proc_name"));
}

TEST(ProcessCapture, AddsUserAndSystemTimeWithWrapAround) {
    FakeProcessTable table;
    table.processes[7].usage = rusage_info_v2{.ri_user_time = ~0ULL, .ri_system_time = 3};
    EXPECT_EQ(ProcessSnapshot::capture(table).processes.at(7).cpuTime, 2U);
}

TEST(ProcessCapture, LeavesRoomForProcessesThatStartMeanwhile) {
    FakeProcessTable table;
    table.processes[7];
    ProcessSnapshot::capture(table);
    EXPECT_EQ(table.bufferSize, 1U + 128U);
    table.reportedCount = -1;
    EXPECT_EQ(ProcessSnapshot::capture(table).processes.size(), 1U);
    EXPECT_EQ(table.bufferSize, 128U);
}

TEST(ProcessCaptureDeathTest, StopsBeforeAListThatNoMachineHas) {
    FakeProcessTable table;
    table.reportedCount = (1 << 29) - 128;
    const auto echoing = [&table] {
        table.calls.echoTo(std::cerr);
        ProcessSnapshot::capture(table);
    };
    EXPECT_DEATH(echoing(), "^proc_listallpids\n$") << "the list itself is not asked for";
}

TEST(ProcessCapture, IsEmptyWhenTheListCannotBeRead) {
    FakeProcessTable table;
    table.processes[7];
    table.reportedWritten = -1;
    EXPECT_TRUE(ProcessSnapshot::capture(table).processes.empty());
}

TEST(ProcessCapture, ReadsNoMorePidsThanWereWrittenNorThanFit) {
    FakeProcessTable table;
    table.processes[1];  // what a slot that nobody wrote must not be taken for
    table.processes[7];
    table.processes[8];
    table.listing = {7, 8};
    table.reportedWritten = 1;
    EXPECT_EQ(ProcessSnapshot::capture(table).processes.size(), 1U);
    table.reportedWritten = 1000000;
    EXPECT_EQ(ProcessSnapshot::capture(table).processes.size(), 2U);
}

TEST(ProcessCapture, SkipsPidsBelowOneAndUnreadableProcesses) {
    FakeProcessTable table;
    table.processes[0];
    table.processes[-3];
    table.processes[7].usage = std::nullopt;
    table.processes[8];
    const auto captured = ProcessSnapshot::capture(table);
    EXPECT_EQ(captured.processes.size(), 1U);
    EXPECT_TRUE(captured.processes.contains(8));
    EXPECT_THAT(table.calls.all(),
                ElementsAre("proc_listallpids", "proc_listallpids", "proc_pid_rusage",
                            "proc_pid_rusage", "mach_absolute_time", "proc_name"));
}

TEST(ProcessCapture, KeepsTheLaterReadingOfAPidThatIsListedTwice) {
    FakeProcessTable table;
    table.processes[7];
    table.listing = {7, 7};
    EXPECT_EQ(ProcessSnapshot::capture(table).processes.at(7).clock, 1002U);
}

TEST(ProcessCapture, NamesAProcessWithoutANameByItsPid) {
    FakeProcessTable table;
    table.processes[312].name = std::nullopt;
    table.processes[313].name = "";
    table.processes[314].name = "X";
    const auto captured = ProcessSnapshot::capture(table);
    EXPECT_EQ(captured.processes.at(312).name, "Process 312");
    EXPECT_EQ(captured.processes.at(313).name, "Process 313");
    EXPECT_EQ(captured.processes.at(314).name, "X");
}

TEST(ProcessCapture, RepairsNamesButDoesNotTrimThem) {
    FakeProcessTable table;
    table.processes[7].name = " a\xFF\n ";
    EXPECT_EQ(ProcessSnapshot::capture(table).processes.at(7).name, " a\uFFFD\n ");
}

TEST(ProcessCapture, ReadsNoMoreOfANameThanFits) {
    FakeProcessTable table;
    table.processes[7].name = std::string(3000, 'x');
    EXPECT_EQ(ProcessSnapshot::capture(table).processes.at(7).name, std::string(1024, 'x'));
}

}  // namespace
}  // namespace zephrine
