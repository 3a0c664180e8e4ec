// SPDX-License-Identifier: MIT
// Processes that follow each other under one pid, and that end while they are read: none may be
// taken for another.
#include <gtest/gtest.h>

#include "platform/linux/processes/ProcessTableFixture.h"

namespace zephrine {
namespace {

using ProcessReuse = testing::LinuxProcessTableTest;

TEST_F(ProcessReuse, SeesAnotherProgramInTheSameProcess) {
    proc_.start(17, "sh", 300, 5);
    capture();
    proc_.start(17, "worker", 300, 6);
    capture();
    EXPECT_EQ(name(17), "worker");
}

TEST_F(ProcessReuse, TellsAReusedPidFromItsPredecessor) {
    proc_.start(17, "old", 300, 5, 7);
    capture();
    proc_.start(17, "new", 400, 2, 8);
    const auto usage = table_.proc_pid_rusage(17);
    ASSERT_TRUE(usage);
    EXPECT_EQ(usage->ri_proc_start_abstime, 400);
    EXPECT_EQ(name(17), "new");
}

TEST_F(ProcessReuse, TellsAReusedPidEvenWhenBothUsedTheSameTime) {
    proc_.start(17, "old", 300, 5, 7);
    proc_.newest(32000);
    capture();
    proc_.start(17, "new", 400, 5, 8);
    proc_.newest(40);  // the pids went round: how else could 17 be given away again
    capture();
    EXPECT_EQ(table_.proc_pid_rusage(17)->ri_proc_start_abstime, 400);
}

TEST_F(ProcessReuse, TellsAReusedPidEvenWhenNeitherHadRunYet) {
    proc_.start(20, "old", 300, 0, 7);
    capture();
    proc_.start(20, "new", 400, 0, 8);
    EXPECT_EQ(table_.proc_pid_rusage(20)->ri_proc_start_abstime, 400);
}

TEST_F(ProcessReuse, GivesNothingWhenAProcessEndsWhileItIsRead) {
    proc_.start(17, "brief", 300, 5);
    list();
    // The second look at the clock comes after `stat` was opened: from here on that reads nothing,
    // as a descriptor of a process that is gone, although a successor answers with its clock.
    proc_.onClockRead = [this](std::int32_t pid) {
        if (proc_.clockReads[pid] == 2) {
            proc_.tree.write("17/stat", "");
        }
    };
    EXPECT_FALSE(table_.proc_pid_rusage(17));
    EXPECT_EQ(proc_.clockReads[17], 2);
}

TEST_F(ProcessReuse, ReadsMemoryBetweenOpeningAndReadingStat) {
    proc_.start(17, "brief", 300, 5, 7);
    list();
    // What `statm` says after the last look at the clock may be a successor's: it is not used.
    proc_.onClockRead = [this](std::int32_t pid) {
        if (proc_.clockReads[pid] == 2) {
            proc_.tree.write("17/statm", "900 500 5 1 0 1 0\n");
        }
    };
    EXPECT_EQ(table_.proc_pid_rusage(17)->ri_phys_footprint, 7 * page_);
}

TEST_F(ProcessReuse, CompletesTheNameOfAReusedPidAnew) {
    proc_.start(17, "gnome-terminal-", 300, 5);
    proc_.tree.write("17/cmdline", std::string("gnome-terminal-server\0", 22));
    capture();
    proc_.start(17, "gnome-terminal-", 400, 6);
    proc_.tree.write("17/cmdline", std::string("gnome-terminal-client\0", 22));
    capture();
    EXPECT_EQ(name(17), "gnome-terminal-client");
}

}  // namespace
}  // namespace zephrine
