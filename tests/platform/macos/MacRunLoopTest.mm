// SPDX-License-Identifier: MIT
#include "platform/macos/MacRunLoop.h"

#include <gtest/gtest.h>

#include <chrono>
#include <future>
#include <memory>
#include <thread>
#include <vector>

#include "contract/RunLoopContract.h"
#include "platform/macos/MacBackgroundWorker.h"

#import <Foundation/Foundation.h>

namespace zephrine {
namespace {

void passTime(double seconds) {
    [NSRunLoop.mainRunLoop runUntilDate:[NSDate dateWithTimeIntervalSinceNow:seconds + 0.05]];
}

struct MacRunLoopHarness {
    MacRunLoop& loop() { return runLoop; }
    void pass(double seconds) { passTime(seconds); }

    MacRunLoop runLoop;
};

INSTANTIATE_TYPED_TEST_SUITE_P(Mac, RunLoopContract, MacRunLoopHarness);

TEST(MacBackgroundWorker, RunsJobsInOrderOffTheMainThreadAndTheirCompletionsOnIt) {
    std::vector<int> order;
    std::thread::id ranOn;
    std::thread::id completedOn;
    MacBackgroundWorker worker;
    const auto neverGivenUp = [] { ADD_FAILURE(); };
    worker.perform(
        [&] {
            order.push_back(1);
            ranOn = std::this_thread::get_id();
            return [&] { completedOn = std::this_thread::get_id(); };
        },
        neverGivenUp);
    bool done = false;
    worker.perform(
        [&] {
            order.push_back(2);
            return [&] { done = true; };
        },
        neverGivenUp);
    while (!done) {
        passTime(0);
    }
    EXPECT_EQ(order, (std::vector<int>{1, 2}));
    EXPECT_NE(ranOn, std::this_thread::get_id());
    EXPECT_EQ(completedOn, std::this_thread::get_id());
}

TEST(MacBackgroundWorker, DropsWhatIsStillQueuedWhenItIsDestroyed) {
    std::promise<void> started;
    std::promise<void> mayEnd;
    bool ranLate = false;
    auto worker = std::make_unique<MacBackgroundWorker>();
    worker->perform(
        [&] {
            started.set_value();
            mayEnd.get_future().wait();
            return [&] { ranLate = true; };
        },
        [] {});
    worker->perform(
        [&]() -> BackgroundWorker::Completion {
            ranLate = true;
            return {};
        },
        [] {});
    started.get_future().wait();
    std::thread releaser([&] {
        // Time for the end to begin: nothing tells when it waits for the job.
        std::this_thread::sleep_for(std::chrono::milliseconds(100));
        mayEnd.set_value();
    });
    worker.reset();
    releaser.join();
    passTime(0.1);
    EXPECT_FALSE(ranLate);
}

}  // namespace
}  // namespace zephrine
