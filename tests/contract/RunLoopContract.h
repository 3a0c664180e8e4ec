// SPDX-License-Identifier: MIT
// What every run loop keeps to. A harness gives a suite its loop as `loop()`, and makes time pass:
// `pass(seconds)` returns when all that becomes due within `seconds` has been done.
//
// Use: INSTANTIATE_TYPED_TEST_SUITE_P(Mine, RunLoopContract, MyHarness);
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <thread>
#include <vector>

#include "platform/RunLoop.h"

namespace zephrine {

template <typename Harness>
struct RunLoopContract : testing::Test {
    Harness harness;
    std::vector<std::string> log;

    std::function<void()> note(const std::string& text) {
        return [this, text] { log.push_back(text); };
    }
};
TYPED_TEST_SUITE_P(RunLoopContract);

TYPED_TEST_P(RunLoopContract, FiresATimerAgainAndAgain) {
    int count = 0;
    const auto timer = this->harness.loop().scheduleTimer(Seconds(0.02), {}, [&] { ++count; });
    EXPECT_EQ(count, 0);
    this->harness.pass(0.02);
    EXPECT_GE(count, 1);
    const int before = count;
    this->harness.pass(0.02);
    EXPECT_GT(count, before);
}

TYPED_TEST_P(RunLoopContract, NeverFiresATimerThatWasDestroyed) {
    auto timer = this->harness.loop().scheduleTimer(Seconds(0.02), {}, this->note("fired"));
    timer.reset();
    const auto other = this->harness.loop().scheduleTimer(Seconds(0.02), {}, this->note("other"));
    this->harness.pass(0.02);
    ASSERT_FALSE(this->log.empty());
    EXPECT_EQ(this->log.front(), "other");
}

TYPED_TEST_P(RunLoopContract, LetsAnActionDestroyItsTimer) {
    int count = 0;
    std::unique_ptr<Timer> timer;
    timer = this->harness.loop().scheduleTimer(Seconds(0.02), {}, [&] {
        ++count;
        timer.reset();
    });
    const auto other = this->harness.loop().scheduleTimer(Seconds(0.02), {}, [] {});
    this->harness.pass(0.02);
    this->harness.pass(0.02);
    EXPECT_EQ(count, 1);
}

TYPED_TEST_P(RunLoopContract, PerformsWorkInOrderAndNotAtOnce) {
    this->harness.loop().performOnMain(this->note("first"));
    this->harness.loop().performOnMain(this->note("second"));
    EXPECT_TRUE(this->log.empty());
    this->harness.pass(0);
    EXPECT_EQ(this->log, (std::vector<std::string>{"first", "second"}));
}

TYPED_TEST_P(RunLoopContract, PerformsWorkOfOtherThreadsOnTheMainThread) {
    std::thread::id ranOn;
    std::thread([&] {
        this->harness.loop().performOnMain([&] { ranOn = std::this_thread::get_id(); });
    }).join();
    this->harness.pass(0);
    EXPECT_EQ(ranOn, std::this_thread::get_id());
}

REGISTER_TYPED_TEST_SUITE_P(RunLoopContract, FiresATimerAgainAndAgain,
                            NeverFiresATimerThatWasDestroyed, LetsAnActionDestroyItsTimer,
                            PerformsWorkInOrderAndNotAtOnce,
                            PerformsWorkOfOtherThreadsOnTheMainThread);

}  // namespace zephrine
