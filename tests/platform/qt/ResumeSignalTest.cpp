// SPDX-License-Identifier: MIT
#include "platform/qt/ResumeSignal.h"

#include <gtest/gtest.h>
#include <sys/timex.h>

#include "platform/qt/KernelTimers.h"
#include "platform/qt/statusitem/bus/PrivateBus.h"

namespace zephrine {
namespace {

using testing::kernelTimers;

struct ResumeSignalTest : ::testing::Test {
    /// Whether the kernel's timer is set to be cancelled when the wall clock jumps.
    [[nodiscard]] bool isWatching() const {
        const auto timer = kernelTimers()[kernelTimer];
        return timer.clock == CLOCK_REALTIME && timer.isArmed &&
               timer.flags == (TFD_TIMER_ABSTIME | TFD_TIMER_CANCEL_ON_SET);
    }

    std::map<int, testing::KernelTimer> before = kernelTimers();
    int resumes = 0;
    ResumeSignal signal{[this] { ++resumes; }};
    int kernelTimer = testing::newKernelTimer(before);
};

TEST_F(ResumeSignalTest, WatchesTheWallClock) {
    EXPECT_TRUE(isWatching());
}

TEST_F(ResumeSignalTest, TellsOfEachSignalOfTheKernelAndGoesOnWatching) {
    for (int round = 0; round < 2; ++round) {
        const int heard = resumes;
        testing::expire(kernelTimer);  // reads as a timer does that was cancelled
        EXPECT_TRUE(waitUntil([&] { return resumes > heard; }));
        EXPECT_TRUE(isWatching());
    }
}

TEST_F(ResumeSignalTest, StaysQuietAfterASignal) {
    testing::expire(kernelTimer);
    EXPECT_TRUE(waitUntil([&] { return resumes > 0; }));
    constexpr int kRounds = 20;
    for (int round = 0; round < kRounds; ++round) {
        QCoreApplication::processEvents();
    }
    EXPECT_LT(resumes, kRounds);  // somebody else may be setting the clock
}

TEST_F(ResumeSignalTest, HearsOfTheClockBeingSet) {
    for (const int step : {1, -1}) {  // ns: nobody else can notice
        timex clock{};
        clock.modes = ADJ_SETOFFSET | ADJ_NANO;
        clock.time = {.tv_sec = step < 0 ? -1 : 0, .tv_usec = step < 0 ? 999'999'999 : 1};
        if (::adjtimex(&clock) < 0) {
            GTEST_SKIP() << "only the system's administrator may set the clock";
        }
        EXPECT_TRUE(waitUntil([heard = resumes, this] { return resumes > heard; }));
    }
    EXPECT_TRUE(isWatching());
}

}  // namespace
}  // namespace zephrine
