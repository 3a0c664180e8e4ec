// SPDX-License-Identifier: MIT
// Waking up: who is told of it, and when the timers go on.
#include <gtest/gtest.h>

#include <chrono>
#include <memory>
#include <thread>

#include "platform/linux/PretendedSleep.h"
#include "platform/qt/KernelTimers.h"
#include "platform/qt/TestApplication.h"
#include "platform/qt/statusitem/bus/PrivateBus.h"

namespace zephrine {
namespace {

void sendResumeSignal() {
    for (const auto& [descriptor, timer] : testing::kernelTimers()) {
        if ((timer.flags & TFD_TIMER_CANCEL_ON_SET) != 0) {
            testing::expire(descriptor);
        }
    }
}

struct WakeUpTest : ::testing::Test {
    using Clock = std::chrono::steady_clock;

    WakeUpTest() {
        testApplication().observeDidWake([this, watch = std::weak_ptr(alive)] {
            if (!watch.expired()) {
                ++wakeUps;
                wokeUp = Clock::now();
            }
        });
    }

    std::shared_ptr<bool> alive = std::make_shared<bool>(true);
    int wakeUps = 0;
    Clock::time_point wokeUp;
};

TEST_F(WakeUpTest, IsToldOfByTheKernelWhereNoTimerTicks) {
    testing::pretendSleep(3600);
    sendResumeSignal();
    EXPECT_TRUE(waitUntil([&] { return wakeUps > 0; }));
}

/// With a timer as the refresh has it. The parameter: its interval, in seconds.
struct WakeUpTimerTest : WakeUpTest, ::testing::WithParamInterface<double> {
    static void spend(double intervals) {
        std::this_thread::sleep_for(std::chrono::duration<double>(GetParam() * intervals));
    }
    void expectAWholeIntervalFromWakeUpToTick() {
        ASSERT_TRUE(waitUntil([&] { return wakeUps > 0; }));
        EXPECT_EQ(ticks, 0);
        ASSERT_TRUE(waitUntil([&] { return ticks > 0; }));
        EXPECT_GE(std::chrono::duration<double>(ticked - wokeUp).count(), GetParam());
        EXPECT_EQ(wakeUps, 1);
    }

    int ticks = 0;
    Clock::time_point ticked;
    std::unique_ptr<Timer> timer = testApplication().runLoop().scheduleTimer(
        Seconds(GetParam()), Seconds(GetParam() * 0.15), [this] {
            ++ticks;
            ticked = Clock::now();
        });
};

TEST_P(WakeUpTimerTest, LetsAWholeIntervalPassBeforeATickThatWasOverdue) {
    spend(1.3);
    testing::pretendSleep(3600);
    expectAWholeIntervalFromWakeUpToTick();
}

TEST_P(WakeUpTimerTest, LetsAWholeIntervalPassBeforeATickThatWasAllButDue) {
    spend(0.9);
    testing::pretendSleep(3600);
    sendResumeSignal();
    expectAWholeIntervalFromWakeUpToTick();
}

INSTANTIATE_TEST_SUITE_P(Intervals, WakeUpTimerTest, ::testing::Values(0.5, 1.0, 5.0));

}  // namespace
}  // namespace zephrine
