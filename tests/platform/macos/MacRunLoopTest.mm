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

TEST(MacBackgroundWorker, RunsJobsInOrderOffTheMainThread) {
    std::vector<int> order;
    std::thread::id ranOn;
    {
        std::promise<void> finished;
        MacBackgroundWorker worker;
        worker.perform([&] {
            order.push_back(1);
            ranOn = std::this_thread::get_id();
        });
        worker.perform([&] {
            order.push_back(2);
            finished.set_value();
        });
        finished.get_future().wait();
    }
    EXPECT_EQ(order, (std::vector<int>{1, 2}));
    EXPECT_NE(ranOn, std::this_thread::get_id());
}

TEST(MacBackgroundWorker, DropsWhatIsStillQueuedWhenItIsDestroyed) {
    std::promise<void> started;
    std::promise<void> mayEnd;
    bool ranLate = false;
    auto worker = std::make_unique<MacBackgroundWorker>();
    worker->perform([&] {
        started.set_value();
        mayEnd.get_future().wait();
    });
    worker->perform([&] { ranLate = true; });
    started.get_future().wait();
    std::thread releaser([&] {
        // Time for the end to begin: nothing tells when it waits for the job.
        std::this_thread::sleep_for(std::chrono::milliseconds(100));
        mayEnd.set_value();
    });
    worker.reset();
    releaser.join();
    EXPECT_FALSE(ranLate);
}

}  // namespace
}  // namespace zephrine
