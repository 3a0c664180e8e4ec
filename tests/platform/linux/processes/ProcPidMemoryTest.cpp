// SPDX-License-Identifier: MIT
#include "platform/linux/processes/ProcPidMemory.h"

#include <gtest/gtest.h>

#include <limits>

#include "platform/linux/Captured.h"
#include "platform/linux/FakeTree.h"

namespace zephrine {
namespace {

using testing::captured;

TEST(AnonymousPages, AreResidentLessShared) {
    EXPECT_EQ(anonymousPages("4221 2721 924 1 0 1802 0\n"), 2721 - 924);
}

TEST(AnonymousPages, AreWithinTwoPagesOfWhatStatusCalledAnonymousAtTheSameTime) {
    const auto pages = anonymousPages(captured("process/newline.statm"));
    const auto bytes = anonymousAndSwappedBytes(captured("process/newline.status"));
    ASSERT_TRUE(pages && bytes);
    EXPECT_NEAR(static_cast<double>(*pages) * 4096, static_cast<double>(*bytes), 2 * 4096);
}

TEST(AnonymousPages, AreNoneInAZombieAndInTheKernel) {
    EXPECT_EQ(anonymousPages(captured("process/zombie.statm")), 0);
    EXPECT_EQ(anonymousPages(captured("process/kthread.statm")), 0);
}

TEST(AnonymousPages, AreNoneRatherThanHugeWhenSharedLagsBehind) {
    EXPECT_EQ(anonymousPages("9 5 6 1 0 1 0\n"), 0);
}

TEST(AnonymousPages, AreAbsentInATruncatedText) {
    for (const char* const text : {"", "9", "9 5", "9 5 6", "9 x 6 1", "9 -1 6 1"}) {
        EXPECT_FALSE(anonymousPages(text)) << text;
    }
}

TEST(AnonymousAndSwappedBytes, AreTheSumOfBoth) {
    EXPECT_EQ(anonymousAndSwappedBytes("Name:\tx\nRssAnon:\t    7188 kB\nVmSwap:\t 12 kB\n"),
              (7188 + 12) * 1024);
}

TEST(AnonymousAndSwappedBytes, DoNotFallForANameThatLooksLikeALine) {
    EXPECT_EQ(anonymousAndSwappedBytes(captured("process/newline.status")), 7192 * 1024);
}

TEST(AnonymousAndSwappedBytes, AreAbsentWithoutRssAnon) {
    EXPECT_FALSE(anonymousAndSwappedBytes(captured("process/kthread.status")));
    EXPECT_FALSE(anonymousAndSwappedBytes("RssAnon:\t 71"));
    EXPECT_FALSE(anonymousAndSwappedBytes("RssAnon:\t 71 MB\n"));
    EXPECT_FALSE(anonymousAndSwappedBytes(""));
}

TEST(AnonymousAndSwappedBytes, StayAtTheTopRatherThanWrappingRound) {
    EXPECT_EQ(
        anonymousAndSwappedBytes("RssAnon:\t18014398509481983 kB\nVmSwap:\t18014398509481983 kB\n"),
        std::numeric_limits<std::uint64_t>::max());
}

TEST(SwapInUse, IsToldByTheUsedColumnOfAnyArea) {
    constexpr const char* kHeader = "Filename\t\t\t\tType\t\tSize\t\tUsed\t\tPriority\n";
    const std::string idle = "/dev/sda\\0402 partition\t8388604\t0\t-2\n";
    const std::string used = "/swapfile file\t8388604\t4\t-3\n";
    EXPECT_FALSE(swapInUse(""));
    EXPECT_FALSE(swapInUse(kHeader));
    EXPECT_FALSE(swapInUse(kHeader + idle));
    EXPECT_TRUE(swapInUse(kHeader + idle + used));
}

}  // namespace
}  // namespace zephrine
