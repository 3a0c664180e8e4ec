// SPDX-License-Identifier: MIT
// The table over a procfs of plain files: what is found, kept, read again and left out.
#include "platform/linux/processes/LinuxProcessTable.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <vector>

#include "platform/linux/AllocationCount.h"
#include "platform/linux/Captured.h"
#include "platform/linux/PretendedSleep.h"
#include "platform/linux/processes/ProcessTableFixture.h"

namespace zephrine {
namespace {

using ::testing::IsEmpty;
using testing::LinuxProcessTableTest;
using ::testing::UnorderedElementsAre;

TEST_F(LinuxProcessTableTest, ReadsEachProcess) {
    proc_.start(20, "first", 300, 5'000'000, 7);
    proc_.start(21, "second (2)", 301, 6'000'000, 8);
    EXPECT_THAT(capture(), UnorderedElementsAre(20, 21));
    const auto usage = table_.proc_pid_rusage(21);
    ASSERT_TRUE(usage);
    EXPECT_EQ(usage->ri_user_time + usage->ri_system_time, 6'000'000);
    EXPECT_EQ(usage->ri_phys_footprint, 8 * page_);
    EXPECT_EQ(usage->ri_proc_start_abstime, 301);
    EXPECT_EQ(name(21), "second (2)");
}

TEST_F(LinuxProcessTableTest, FindsANewProcessByTheNewestPidWithoutListing) {
    proc_.start(20, "first", 300, 5, 7);
    proc_.newest(20);
    capture();
    proc_.start(23, "second", 310, 6, 7);
    proc_.newest(24);
    EXPECT_THAT(capture(), UnorderedElementsAre(20, 23));
    EXPECT_EQ(proc_.clockReads[19], 0);
    EXPECT_EQ(proc_.clockReads[24], 1);
}

TEST_F(LinuxProcessTableTest, FindsAProcessThatHadItsPidBeforeItCouldBeFound) {
    proc_.newest(20);
    capture();
    proc_.newest(21);
    EXPECT_THAT(capture(), IsEmpty());
    proc_.start(21, "late", 310, 6);
    EXPECT_THAT(capture(), UnorderedElementsAre(21));
}

TEST_F(LinuxProcessTableTest, FindsProcessesAfterThePidsBeganAnew) {
    proc_.newest(32000);
    capture();
    proc_.start(320, "after", 900, 6);
    proc_.newest(320);
    EXPECT_THAT(capture(), UnorderedElementsAre(320));
}

TEST_F(LinuxProcessTableTest, FindsProcessesWhoseNewestPidTellsNothingInTheNextWholeListing) {
    proc_.newest(20);
    capture();
    proc_.start(10, "restored", 900, 6);  // as a checkpoint does, under a number of its choice
    for (int round = 1; round < 16; ++round) {
        EXPECT_THAT(capture(), IsEmpty());
    }
    EXPECT_THAT(capture(), UnorderedElementsAre(10));
}

TEST_F(LinuxProcessTableTest, DropsAProcessThatEnded) {
    proc_.start(20, "first", 300, 5);
    proc_.start(21, "second", 300, 5);
    capture();
    proc_.end(20);
    EXPECT_FALSE(table_.proc_pid_rusage(20));
    EXPECT_EQ(name(20), "");
    EXPECT_THAT(list(), UnorderedElementsAre(21));
}

TEST_F(LinuxProcessTableTest, DropsEndedProcessesFromItsListingsEvenWhenNobodyReadsThem) {
    proc_.start(20, "first", 300, 5);
    list();
    proc_.end(20);
    for (int round = 1; round <= 16; ++round) {
        list();
    }
    EXPECT_THAT(list(), IsEmpty());
}

TEST_F(LinuxProcessTableTest, ReadsNoFileOfAProcessWhoseClockStands) {
    proc_.start(17, "sleeper", 300, 5, 7);  // its turn to be read again is the 16th capture
    capture();
    proc_.start(17, "sleeper", 300, 5, 9);
    for (int round = 1; round < 16; ++round) {
        capture();
        EXPECT_EQ(table_.proc_pid_rusage(17)->ri_phys_footprint, 7 * page_) << round;
    }
    capture();
    EXPECT_EQ(table_.proc_pid_rusage(17)->ri_phys_footprint, 9 * page_);
}

TEST_F(LinuxProcessTableTest, ReadsAProcessAgainWhenItsClockMoved) {
    proc_.start(17, "worker", 300, 5, 7);
    capture();
    proc_.start(17, "worker", 300, 6, 9);
    const auto usage = table_.proc_pid_rusage(17);
    ASSERT_TRUE(usage);
    EXPECT_EQ(usage->ri_user_time, 6);
    EXPECT_EQ(usage->ri_phys_footprint, 9 * page_);
}

TEST_F(LinuxProcessTableTest, LeavesOutProcessesThatOnlyTheirClockGivesAway) {
    proc_.newest(20);
    capture();
    proc_.start(21, "theirs", 300, 5);
    proc_.hide(21);
    proc_.newest(21);
    EXPECT_THAT(capture(), IsEmpty());
    EXPECT_FALSE(table_.proc_pid_rusage(21));
    EXPECT_EQ(name(21), "");
}

TEST_F(LinuxProcessTableTest, HasNoProcessesInTheProcfsOfAnotherNamespace) {
    const testing::FakeTree tree;
    tree.link("self", std::to_string(::getpid() + 1));
    tree.write("17/stat", testing::FakeProc::statLine(17, "other", 300));
    tree.write("17/statm", "9 8 7 1 0 1 0\n");
    LinuxProcessTable table(tree.root(),
                            [](std::int32_t) { return std::optional<std::uint64_t>(1); });
    EXPECT_LT(table.proc_listallpids({}), 0);
    EXPECT_FALSE(table.proc_pid_rusage(17));
}

TEST_F(LinuxProcessTableTest, HasNoProcessesWithoutAProcfs) {
    LinuxProcessTable table(proc_.tree.path("nowhere"), proc_.clock());
    EXPECT_LT(table.proc_listallpids({}), 0);
    EXPECT_FALSE(table.proc_pid_rusage(::getpid()));
}

TEST_F(LinuxProcessTableTest, ListsAllEachTimeWhileTheNewestPidCannotBeRead) {
    proc_.tree.remove("loadavg");
    LinuxProcessTable table(proc_.tree.root(), proc_.clock());
    EXPECT_EQ(table.proc_listallpids({}), 0);
    proc_.start(17, "late", 300, 5);
    EXPECT_EQ(table.proc_listallpids({}), 1);
}

TEST_F(LinuxProcessTableTest, CountsSwappedMemoryOnceSwapIsInUse) {
    proc_.start(17, "swapped", 300, 5, 7);
    proc_.tree.write("17/status", "Name:\tswapped\nRssAnon:\t 100 kB\nVmSwap:\t 23 kB\n");
    proc_.tree.write("swaps", "Filename\n/dev/sda2 partition 8388604 4096 -2\n");
    capture();
    EXPECT_EQ(table_.proc_pid_rusage(17)->ri_phys_footprint, 123 * 1024);
}

TEST_F(LinuxProcessTableTest, TakesWhatIsResidentWhereStatusDoesNotTellWhatIsSwapped) {
    proc_.start(17, "kernel", 300, 5, 7);
    proc_.tree.write("17/status", "Name:\tkernel\n");
    proc_.tree.write("swaps", "Filename\n/dev/sda2 partition 8388604 4096 -2\n");
    capture();
    EXPECT_EQ(table_.proc_pid_rusage(17)->ri_phys_footprint, 7 * page_);
}

TEST_F(LinuxProcessTableTest, ShowsAZombieWithoutMemory) {
    proc_.start(17, "zombie", 300, 5);
    proc_.tree.write("17/stat", testing::captured("process/zombie.stat"));
    proc_.tree.write("17/statm", testing::captured("process/zombie.statm"));
    const auto usage = table_.proc_pid_rusage(17);
    ASSERT_TRUE(usage);
    EXPECT_EQ(usage->ri_phys_footprint, 0);
}

TEST_F(LinuxProcessTableTest, CompletesANameThatTheKernelCutOff) {
    proc_.start(17, "gnome-terminal-", 300, 5);
    proc_.tree.write("17/cmdline", std::string("/usr/libexec/gnome-terminal-server\0--x\0", 39));
    EXPECT_EQ(name(17), "gnome-terminal-server");
}

TEST_F(LinuxProcessTableTest, CutsANameToTheBufferAndHasNoneForAnEmptyOne) {
    proc_.start(17, "abcdef", 300, 5);
    proc_.start(18, "", 300, 5);
    std::array<char, 3> buffer{};
    EXPECT_EQ(table_.proc_name(17, buffer), 3);
    EXPECT_EQ(std::string(buffer.data(), 3), "abc");
    EXPECT_LT(table_.proc_name(18, buffer), 1);
}

TEST_F(LinuxProcessTableTest, WritesNoMorePidsThanThereIsRoomFor) {
    proc_.start(17, "one", 300, 5);
    proc_.start(18, "two", 300, 5);
    std::array<std::int32_t, 2> pids{-7, -7};
    EXPECT_EQ(table_.proc_listallpids(std::span(pids).first(1)), 1);
    EXPECT_EQ(pids[1], -7);
}

TEST_F(LinuxProcessTableTest, GivesNothingForTruncatedFiles) {
    for (const char* const file : {"17/stat", "17/statm"}) {
        proc_.start(17, "torn", 300, 5);
        proc_.tree.write(file, "17 (torn");
        EXPECT_FALSE(table_.proc_pid_rusage(17)) << file;
    }
}

TEST_F(LinuxProcessTableTest, GivesNothingForPidsThatCannotBe) {
    EXPECT_FALSE(table_.proc_pid_rusage(0));
    EXPECT_FALSE(table_.proc_pid_rusage(-1));
}

TEST_F(LinuxProcessTableTest, HasAClockThatStandsStillInSleepAsThoseOfProcessesDo) {
    constexpr std::uint64_t kHour = 3'600'000'000'000;
    const std::uint64_t before = table_.mach_absolute_time();
    testing::pretendSleep(3600);
    EXPECT_GT(table_.mach_absolute_time(), before);
    EXPECT_LT(table_.mach_absolute_time(), before + kHour);
}

TEST_F(LinuxProcessTableTest, TakesNothingFromTheHeapForProcessesThatSleep) {
    std::vector<std::int32_t> pids;
    for (std::int32_t pid = 1; pid <= 200; ++pid) {
        proc_.start(pid, "sleeper", 300, 5);
        proc_.clockReads[pid] = 0;
    }
    proc_.newest(200);
    capture();
    pids.resize(400);
    const std::size_t before = testing::allocationCount();
    for (int round = 0; round < 40; ++round) {
        table_.proc_listallpids({});
        const int count = table_.proc_listallpids(pids);
        for (int slot = 0; slot < count; ++slot) {
            EXPECT_TRUE(table_.proc_pid_rusage(pids[static_cast<std::size_t>(slot)]));
        }
    }
    EXPECT_EQ(testing::allocationCount(), before);
}

}  // namespace
}  // namespace zephrine
