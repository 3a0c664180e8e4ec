// SPDX-License-Identifier: MIT
#include "platform/linux/time/SleepWatcher.h"

#include <gtest/gtest.h>

#include "platform/linux/PretendedSleep.h"

namespace zephrine {
namespace {

using std::chrono::milliseconds;

struct SleepWatcherTest : ::testing::Test {
    SleepWatcher::Time awake{std::chrono::hours(1)};
    SleepWatcher::Time asleep{std::chrono::minutes(7)};
    SleepWatcher::Time delay{0};  ///< between two readings of a clock
    int wakeUps = 0;
    SleepWatcher watcher{{[this] {
                              const auto now = awake + asleep;
                              awake += delay;
                              return now;
                          },
                          [this] { return awake; }}};

    SleepWatcherTest() {
        watcher.observe([this] { ++wakeUps; });
    }
};

TEST_F(SleepWatcherTest, StaysQuietWhileTimeJustPasses) {
    awake += std::chrono::hours(10);
    watcher.check();
    EXPECT_EQ(wakeUps, 0);
}

TEST_F(SleepWatcherTest, TellsOnceOfASleep) {
    asleep += milliseconds(501);
    watcher.check();
    watcher.check();
    EXPECT_EQ(wakeUps, 1);
}

TEST_F(SleepWatcherTest, TellsOfEverySleep) {
    asleep += std::chrono::seconds(20);
    watcher.check();
    asleep += std::chrono::seconds(20);
    watcher.check();
    EXPECT_EQ(wakeUps, 2);
}

TEST_F(SleepWatcherTest, OverlooksHalfASecond) {
    asleep += milliseconds(500);
    watcher.check();
    EXPECT_EQ(wakeUps, 0);
}

TEST_F(SleepWatcherTest, DoesNotTakeABusyMachineForASleepingOne) {
    delay = std::chrono::seconds(3);
    watcher.check();
    delay = milliseconds(0);
    watcher.check();
    EXPECT_EQ(wakeUps, 0);
}

TEST_F(SleepWatcherTest, BelievesSomebodyElseWhereTheClocksShowNoSleep) {
    watcher.hearOfWakeUp();
    watcher.hearOfWakeUp();
    EXPECT_EQ(wakeUps, 2);
}

TEST_F(SleepWatcherTest, TellsOnceOfASleepThatSomebodyElseTellsOfToo) {
    for (int sleep = 1; sleep <= 3; ++sleep) {
        asleep += std::chrono::seconds(20);
        watcher.check();
        watcher.hearOfWakeUp();
        watcher.check();
        EXPECT_EQ(wakeUps, sleep);
    }
    asleep += std::chrono::seconds(20);
    watcher.hearOfWakeUp();  // before the clocks were looked at
    watcher.check();
    EXPECT_EQ(wakeUps, 4);
}

TEST(SleepWatcher, SeesASleepInTheClocksOfThisMachine) {
    int wakeUps = 0;
    SleepWatcher watcher;
    watcher.observe([&] { ++wakeUps; });
    testing::pretendSleep(1);
    watcher.check();
    watcher.check();
    EXPECT_EQ(wakeUps, 1);
}

TEST(SleepWatcher, SeesNoSleepInTheClocksOfThisMachine) {
    int wakeUps = 0;
    SleepWatcher watcher;
    watcher.observe([&] { ++wakeUps; });
    watcher.check();
    EXPECT_EQ(wakeUps, 0);
}

}  // namespace
}  // namespace zephrine
