// SPDX-License-Identifier: MIT
#include "platform/linux/time/TimerQueue.h"

#include <gmock/gmock.h>

namespace zephrine {
namespace {

using std::chrono::milliseconds;
using testing::ElementsAre;

struct TimerQueueTest : testing::Test {
    TimerQueue queue;
    std::vector<std::string> fired;

    std::unique_ptr<Timer> add(const std::string& name, int now, int interval, int tolerance = 0) {
        return queue.add(milliseconds(now), milliseconds(interval), milliseconds(tolerance),
                         [this, name] { fired.push_back(name); });
    }
    void runAt(int now) { TimerQueue::run(queue.takeDue(milliseconds(now))); }
};

TEST_F(TimerQueueTest, HasNothingToWakeForWithoutTimers) {
    EXPECT_EQ(queue.nextWake(), std::nullopt);
    const auto timer = add("a", 0, 1000);
    EXPECT_NE(queue.nextWake(), std::nullopt);
}

TEST_F(TimerQueueTest, FiresFirstAfterOneInterval) {
    const auto timer = add("a", 100, 1000);
    runAt(1099);
    EXPECT_THAT(fired, ElementsAre());
    runAt(1100);
    EXPECT_THAT(fired, ElementsAre("a"));
}

TEST_F(TimerQueueTest, DoesNotAddUpLateness) {
    const auto timer = add("a", 0, 1000);
    runAt(1900);
    EXPECT_EQ(queue.nextWake(), milliseconds(2000));
}

TEST_F(TimerQueueTest, FiresOnceForPeriodsThatWereMissed) {
    const auto timer = add("a", 0, 1000);
    runAt(5500);
    EXPECT_THAT(fired, ElementsAre("a"));
    EXPECT_EQ(queue.nextWake(), milliseconds(6000));
}

TEST_F(TimerQueueTest, WakesOnceForTimersWhoseTolerancesOverlap) {
    const auto tolerant = add("tolerant", 0, 1000, 200);
    const auto exact = add("exact", 100, 1000);
    ASSERT_EQ(queue.nextWake(), milliseconds(1100));
    runAt(1100);
    EXPECT_THAT(fired, ElementsAre("tolerant", "exact"));
}

TEST_F(TimerQueueTest, WakesNoLaterThanTheToleranceAllows) {
    const auto timer = add("a", 0, 1000, 150);
    EXPECT_EQ(queue.nextWake(), milliseconds(1150));
}

TEST_F(TimerQueueTest, KeepsNeitherDestroyedTimersNorTheirWakeUps) {
    auto timer = add("a", 0, 1000);
    timer.reset();
    EXPECT_EQ(queue.nextWake(), std::nullopt);
    runAt(2000);
    EXPECT_THAT(fired, ElementsAre());
}

TEST_F(TimerQueueTest, LetsAnActionDestroyItsOwnTimer) {
    std::unique_ptr<Timer> timer;
    timer = queue.add(milliseconds(0), milliseconds(10), milliseconds(0), [&] {
        fired.emplace_back("last");
        timer.reset();
    });
    runAt(10);
    runAt(20);
    EXPECT_THAT(fired, ElementsAre("last"));
}

TEST_F(TimerQueueTest, DoesNotFireATimerThatAnEarlierActionDestroyed) {
    std::unique_ptr<Timer> second;
    const auto first =
        queue.add(milliseconds(0), milliseconds(10), milliseconds(0), [&] { second.reset(); });
    second = add("second", 0, 10);
    runAt(10);
    EXPECT_THAT(fired, ElementsAre());
}

TEST_F(TimerQueueTest, DoesNotCallAnActionInsideItself) {
    int depth = 0;
    int deepest = 0;
    int now = 10;
    const auto timer = queue.add(milliseconds(0), milliseconds(10), milliseconds(0), [&] {
        deepest = std::max(deepest, ++depth);
        if (now < 50) {  // as a loop of the action's own would
            runAt(now += 10);
        }
        --depth;
    });
    runAt(now);
    EXPECT_EQ(deepest, 1);
}

TEST_F(TimerQueueTest, LetsEveryTimerBeDueAWholeIntervalAfterARestart) {
    for (const int interval : {500, 1000, 5000}) {
        const int tolerance = interval * 15 / 100;
        const auto overdue = add("overdue", 0, interval, tolerance);
        const int now = interval * 3 / 2;
        const auto allButDue = add("all but due", now - interval + 1, interval, tolerance);
        queue.restart(milliseconds(now));
        EXPECT_EQ(queue.nextWake(), milliseconds(now + interval + tolerance));
        runAt(now + interval - 1);
        EXPECT_THAT(std::exchange(fired, {}), ElementsAre()) << interval;
        runAt(now + interval);
        EXPECT_THAT(std::exchange(fired, {}), ElementsAre("overdue", "all but due")) << interval;
    }
}

TEST_F(TimerQueueTest, TurnsIntervalsThatAreNoneIntoAMillisecond) {
    const auto timer = add("a", 0, 0);
    EXPECT_EQ(queue.nextWake(), milliseconds(1));
}

}  // namespace
}  // namespace zephrine
