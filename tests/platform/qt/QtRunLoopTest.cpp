// SPDX-License-Identifier: MIT
#include "platform/qt/QtRunLoop.h"

#include <gtest/gtest.h>

#include <cmath>

#include "contract/RunLoopContract.h"
#include "platform/qt/KernelTimers.h"
#include "platform/qt/statusitem/bus/PrivateBus.h"

namespace zephrine {
namespace {

struct QtRunLoopHarness {
    QtRunLoop& loop() { return runLoop; }
    void pass(double seconds) {
        const QDeadlineTimer enough(static_cast<qint64>(seconds * 1000) + 20);
        EXPECT_TRUE(waitUntil([&] { return enough.hasExpired(); }));
        QCoreApplication::processEvents();  // what became due while this process had to wait
    }

    QtRunLoop runLoop;
};

INSTANTIATE_TYPED_TEST_SUITE_P(Qt, RunLoopContract, QtRunLoopHarness);

TEST(QtRunLoop, RunsItsCheckAheadOfEveryTimer) {
    std::vector<std::string> log;
    QtRunLoop loop([&] { log.emplace_back("check"); });
    const auto timer = loop.scheduleTimer(Seconds(0.01), {}, [&] { log.emplace_back("timer"); });
    ASSERT_TRUE(waitUntil([&] { return log.size() >= 2; }));
    EXPECT_EQ(log[0], "check");
    EXPECT_EQ(log[1], "timer");
}

TEST(QtRunLoop, FiresNothingThatItsCheckRestarts) {
    int checks = 0;
    int fired = 0;
    QtRunLoop* checked = nullptr;
    QtRunLoop loop([&] {
        if (++checks < 3) {
            EXPECT_EQ(fired, 0);
            checked->restartTimers();
        }
    });
    checked = &loop;
    const auto timer = loop.scheduleTimer(Seconds(0.01), {}, [&] { ++fired; });
    ASSERT_TRUE(waitUntil([&] { return fired > 0; }));
    EXPECT_GE(checks, 3);
}

TEST(QtRunLoop, LetsTheKernelWakeItAsLateAsATimerTolerates) {
    const auto before = testing::kernelTimers();
    QtRunLoop loop;
    const auto timer = loop.scheduleTimer(Seconds(1000), Seconds(150), [] {});
    const auto kernelTimer = testing::kernelTimers()[testing::newKernelTimer(before)];
    EXPECT_GT(kernelTimer.secondsLeft, 1000);
    EXPECT_LE(kernelTimer.secondsLeft, 1150);
}

TEST(QtRunLoop, KeepsFiringInsideALoopThatAnActionRuns) {
    QtRunLoop loop;
    int inner = 0;
    bool done = false;
    const auto other = loop.scheduleTimer(Seconds(0.005), {}, [&] { ++inner; });
    const auto timer = loop.scheduleTimer(Seconds(0.01), {}, [&] {
        const int before = inner;
        done = done || waitUntil([&] { return inner > before + 1; });
    });
    EXPECT_TRUE(waitUntil([&] { return done; }));
}

TEST(QtRunLoop, TakesAnIntervalThatIsNoNumberForAShortOne) {
    QtRunLoop loop;
    int count = 0;
    const auto timer =
        loop.scheduleTimer(Seconds(std::nan("")), Seconds(std::nan("")), [&] { ++count; });
    EXPECT_TRUE(waitUntil([&] { return count > 0; }));
}

}  // namespace
}  // namespace zephrine
