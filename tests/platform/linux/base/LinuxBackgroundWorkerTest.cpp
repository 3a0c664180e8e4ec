// SPDX-License-Identifier: MIT
#include "platform/linux/base/LinuxBackgroundWorker.h"

#include <gmock/gmock.h>
#include <sched.h>
#include <sys/resource.h>

#include <atomic>
#include <future>
#include <memory>
#include <utility>
#include <vector>

namespace zephrine {
namespace {

TEST(LinuxBackgroundWorker, RunsJobsInOrderOnOneThreadOfItsOwn) {
    std::vector<int> order;
    std::vector<std::thread::id> threads;
    std::promise<void> done;
    LinuxBackgroundWorker worker;
    for (int job = 0; job < 5; ++job) {
        worker.perform([&, job] {
            order.push_back(job);
            threads.push_back(std::this_thread::get_id());
            if (job == 4) {
                done.set_value();
            }
        });
    }
    done.get_future().wait();
    EXPECT_THAT(order, testing::ElementsAre(0, 1, 2, 3, 4));
    EXPECT_THAT(threads, testing::Each(threads.front()));
    EXPECT_NE(threads.front(), std::this_thread::get_id());
}

TEST(LinuxBackgroundWorker, RunsAtLowPriority) {
    std::promise<std::pair<int, int>> found;
    LinuxBackgroundWorker worker;
    worker.perform([&] { found.set_value({sched_getscheduler(0), getpriority(PRIO_PROCESS, 0)}); });
    const auto [policy, niceValue] = found.get_future().get();
    EXPECT_EQ(policy, SCHED_BATCH);
    EXPECT_GE(niceValue, 10);
    EXPECT_EQ(sched_getscheduler(0), SCHED_OTHER) << "the main thread keeps its own";
}

TEST(LinuxBackgroundWorker, DropsWhatIsQueuedWhenItIsDestroyed) {
    std::promise<void> started;
    std::promise<void> goOn;
    std::atomic<bool> firstEnded = false;
    std::atomic<bool> secondRan = false;
    auto token = std::make_shared<int>();
    const std::weak_ptr<int> queued = token;
    auto worker = std::make_unique<LinuxBackgroundWorker>();
    worker->perform([&] {
        started.set_value();
        goOn.get_future().wait();
        firstEnded = true;
    });
    worker->perform([&secondRan, held = std::move(token)] { secondRan = true; });
    started.get_future().wait();
    std::thread destroyer([&] { worker.reset(); });
    while (!queued.expired()) {  // until the queue is dropped
        std::this_thread::yield();
    }
    goOn.set_value();
    destroyer.join();
    EXPECT_TRUE(firstEnded) << "the job that ran was waited for";
    EXPECT_FALSE(secondRan);
}

}  // namespace
}  // namespace zephrine
