// SPDX-License-Identifier: MIT
#include "platform/linux/processes/ProcessName.h"

#include <gtest/gtest.h>

#include <string>

namespace zephrine {
namespace {

using namespace std::string_view_literals;

TEST(CompletedProcessName, TakesTheFileNameThatTheKernelCutOff) {
    EXPECT_EQ(
        completedProcessName("gnome-terminal-", "/usr/libexec/gnome-terminal-server\0--x\0"sv),
        "gnome-terminal-server");
    EXPECT_EQ(completedProcessName("systemd-journal", "systemd-journald\0"sv), "systemd-journald");
}

TEST(CompletedProcessName, KeepsANameThatWasNotCutOff) {
    EXPECT_EQ(completedProcessName("bash", "bash-and-more\0"sv), "bash");
    EXPECT_EQ(
        completedProcessName("kworker/u8:2-events_unbound", "kworker/u8:2-events_unboundX\0"sv),
        "kworker/u8:2-events_unbound");
}

TEST(CompletedProcessName, BelievesNoCommandLineThatDoesNotGoOnFromTheName) {
    EXPECT_EQ(completedProcessName("a-program-with-", "/usr/bin/another\0"sv), "a-program-with-");
    EXPECT_EQ(completedProcessName("a-program-with-", "\0"sv), "a-program-with-");
    EXPECT_EQ(completedProcessName("a-program-with-", ""), "a-program-with-");
}

TEST(CompletedProcessName, LeavesOutTheArgumentsOfARewrittenTitle) {
    EXPECT_EQ(completedProcessName("chromium-browse",
                                   "/usr/lib/chromium-browser --type=renderer --dir=/home/me\0"sv),
              "chromium-browser");
}

TEST(CompletedProcessName, BelievesNothingThatIsTooLongForAFileNameOrNotEnded) {
    const std::string endless = "a-program-with-" + std::string(5000, 'x');
    EXPECT_EQ(completedProcessName("a-program-with-", endless), "a-program-with-");
    EXPECT_EQ(completedProcessName("a-program-with-", std::string_view(endless.c_str(), 5016)),
              "a-program-with-");
}

}  // namespace
}  // namespace zephrine
