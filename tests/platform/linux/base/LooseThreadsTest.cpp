// SPDX-License-Identifier: MIT
#include "platform/linux/base/LooseThreads.h"

#include <gtest/gtest.h>

#include <atomic>
#include <vector>

#include "platform/linux/StuckWork.h"
#include "platform/linux/ThreadShortage.h"

namespace zephrine {
namespace {

using testing::eventually;

struct LooseThreadsTest : ::testing::Test {
    testing::StuckWork stuck;
    LooseThreads threads{"zephrine-test", 3};
};

TEST_F(LooseThreadsTest, LetsGoOfAThreadThatIsStuck) {
    auto thread = threads.start(stuck.work());
    ASSERT_NE(thread, nullptr);
    ASSERT_TRUE(eventually([this] { return stuck.waiting() == 1; }));
    thread.reset();
    EXPECT_EQ(stuck.waiting(), 1);
}

TEST_F(LooseThreadsTest, CountsThoseThatWereLetGoUntilTheyEnd) {
    for (int thread = 0; thread < 3; ++thread) {
        EXPECT_NE(threads.start(stuck.work()), nullptr);
    }
    EXPECT_EQ(threads.start([] {}), nullptr);
    stuck.goOn();
    EXPECT_TRUE(eventually([this] { return threads.start([] {}) != nullptr; }));
}

TEST_F(LooseThreadsTest, IsWithoutAThreadWhereTheSystemGrantsNone) {
    {
        const testing::ThreadShortage shortage;
        EXPECT_EQ(threads.start([] {}), nullptr);
    }
    EXPECT_NE(threads.start([] {}), nullptr);
}

TEST_F(LooseThreadsTest, TellsAThreadThatRunsFromOneThatWaits) {
    std::atomic<bool> end = false;
    const auto runs = threads.start([&end] {
        while (!end) {
        }
    });
    const auto waits = threads.start(stuck.work());
    const auto before = runs->cpuTime();
    EXPECT_TRUE(eventually([&] { return runs->cpuTime() > before; }));
    end = true;
    EXPECT_TRUE(eventually([&, last = waits->cpuTime()]() mutable {
        return std::exchange(last, waits->cpuTime()) == last && last.has_value();
    }));
}

}  // namespace
}  // namespace zephrine
