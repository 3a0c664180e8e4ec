// SPDX-License-Identifier: MIT
// A process whose command line cannot be read, nor waited for.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <thread>

#include "platform/linux/HangingFile.h"
#include "platform/linux/processes/FakeProc.h"
#include "platform/linux/processes/LinuxProcessTable.h"
#include "processes/ProcessSnapshot.h"

namespace zephrine {
namespace {

using testing::eventually;

struct StuckCommandLineTest : ::testing::Test {
    StuckCommandLineTest() {
        proc.start(17, "hanging-process", 300, 5);
        proc.start(18, "gnome-terminal-", 300, 5);
        proc.tree.write("18/cmdline", std::string("/usr/libexec/gnome-terminal-server\0", 35));
    }
    [[nodiscard]] std::shared_ptr<ProcessTable> makeTable() {
        return std::make_shared<LinuxProcessTable>(
            proc.tree.root(), [](std::int32_t) { return std::optional<std::uint64_t>(5); },
            readers);
    }
    static std::string name(const ProcessSnapshot& snapshot, std::int32_t pid) {
        const auto found = snapshot.processes.find(pid);
        return found == snapshot.processes.end() ? "" : found->second.name;
    }

    testing::FakeProc proc;
    CommandLineReaders readers = std::make_shared<std::atomic<int>>(0);
};

TEST_F(StuckCommandLineTest, HoldsUpOneCaptureButNotTheNextOnes) {
    const auto later = makeTable();
    {
        const testing::HangingFile cmdline(proc.tree.path("17/cmdline"));
        std::thread stuck([table = makeTable()] { ProcessSnapshot::capture(*table); });
        ASSERT_TRUE(eventually([this] { return readers->load() == 1; }));
        const auto snapshot = ProcessSnapshot::capture(*later);
        EXPECT_EQ(name(snapshot, 17), "hanging-process");
        EXPECT_EQ(name(snapshot, 18), "gnome-terminal-") << "only read where nobody is stuck";
        cmdline.answer();
        stuck.join();
    }
    EXPECT_EQ(*readers, 0);
    // Each process is looked at anew every sixteenth capture.
    ProcessSnapshot last;
    for (int capture = 0; capture < 16; ++capture) {
        last = ProcessSnapshot::capture(*later);
    }
    EXPECT_EQ(name(last, 18), "gnome-terminal-server");
}

}  // namespace
}  // namespace zephrine
