// SPDX-License-Identifier: MIT
#include "platform/linux/base/LinuxBackgroundWorker.h"

#include <gmock/gmock.h>
#include <sched.h>
#include <sys/resource.h>

#include <atomic>
#include <memory>
#include <thread>
#include <utility>
#include <vector>

#include "platform/linux/FakeTree.h"
#include "platform/linux/HangingFile.h"
#include "platform/linux/StuckWork.h"
#include "platform/linux/ThreadShortage.h"
#include "platform/qt/QtRunLoop.h"
#include "platform/qt/statusitem/bus/PrivateBus.h"

namespace zephrine {
namespace {

using ::testing::Each;
using ::testing::ElementsAre;

struct LinuxBackgroundWorkerTest : ::testing::Test {
    /// Hands over a job; the log gets `name` from its completion, or from its being given up.
    void perform(const std::string& name, std::function<void()> work) {
        worker->perform(
            [this, name, work = std::move(work)]() -> BackgroundWorker::Completion {
                work();
                return [this, name] { log.push_back(name); };
            },
            [this, name] { log.push_back(name + " given up"); });
    }
    [[nodiscard]] bool waitForLog(std::size_t entries) const {
        return waitUntil([&] { return log.size() >= entries; });
    }

    std::vector<std::string> log;
    testing::StuckWork stuck;
    QtRunLoop loop;
    static constexpr Seconds kPatience{0.05};
    std::unique_ptr<LinuxBackgroundWorker> worker =
        std::make_unique<LinuxBackgroundWorker>(loop, kPatience);
};

TEST_F(LinuxBackgroundWorkerTest, RunsJobsInOrderOnOneThreadAndTheirCompletionsOnTheMainThread) {
    std::vector<std::thread::id> threads;
    for (const char* name : {"1", "2", "3"}) {
        perform(name, [&] { threads.push_back(std::this_thread::get_id()); });
    }
    EXPECT_TRUE(log.empty());
    ASSERT_TRUE(waitForLog(3));
    EXPECT_THAT(log, ElementsAre("1", "2", "3"));
    EXPECT_THAT(threads, Each(threads.front()));
    EXPECT_NE(threads.front(), std::this_thread::get_id());
}

TEST_F(LinuxBackgroundWorkerTest, RunsAtLowPriority) {
    int policy = -1;
    int niceValue = 0;
    perform("look", [&] {
        policy = sched_getscheduler(0);
        niceValue = getpriority(PRIO_PROCESS, 0);
    });
    ASSERT_TRUE(waitForLog(1));
    EXPECT_EQ(policy, SCHED_BATCH);
    EXPECT_GE(niceValue, 10);
    EXPECT_EQ(sched_getscheduler(0), SCHED_OTHER) << "the main thread keeps its own";
}

TEST_F(LinuxBackgroundWorkerTest, TakesAJobWithoutACompletion) {
    worker->perform([] { return BackgroundWorker::Completion(); }, [] {});
    perform("next", [] {});
    ASSERT_TRUE(waitForLog(1));
}

TEST_F(LinuxBackgroundWorkerTest, FreesWhatAJobHeldBeforeItsCompletionRuns) {
    std::atomic<bool> isFree = false;
    bool wasFree = false;
    const auto free = [&isFree](const int* held) {
        std::this_thread::sleep_for(std::chrono::milliseconds(50));  // time to be overtaken
        delete held;
        isFree = true;
    };
    worker->perform(
        [&, held = std::shared_ptr<int>(new int, free)] {
            return [&] {
                wasFree = isFree;
                log.emplace_back("done");
            };
        },
        [] {});
    ASSERT_TRUE(waitForLog(1));
    EXPECT_TRUE(wasFree);
}

TEST_F(LinuxBackgroundWorkerTest, GivesUpAJobThatIsStuckAndGoesOnWithTheNext) {
    const testing::FakeTree tree;
    const testing::HangingFile file(tree.path("file"));
    perform("stuck", [&] { file.read(); });
    perform("next", [] {});
    ASSERT_TRUE(waitForLog(2));
    EXPECT_THAT(log, ElementsAre("stuck given up", "next"));
}

TEST_F(LinuxBackgroundWorkerTest, HearsNothingOfAJobThatGoesOnAfterItWasGivenUp) {
    perform("stuck", stuck.work());
    ASSERT_TRUE(waitForLog(1));
    stuck.goOn();
    perform("next", [] {});
    ASSERT_TRUE(waitForLog(2));
    EXPECT_THAT(log, ElementsAre("stuck given up", "next"));
}

TEST_F(LinuxBackgroundWorkerTest, LeavesAJobAloneThatTakesLongButWorks) {
    static constexpr Seconds kMorePatience{
        0.5};  // a thread of low priority does not run all the time
    worker = std::make_unique<LinuxBackgroundWorker>(loop, kMorePatience);
    perform("works", [] {
        const auto end = std::chrono::steady_clock::now() + 4 * kMorePatience;
        while (std::chrono::steady_clock::now() < end) {
        }
    });
    ASSERT_TRUE(waitForLog(1));
    EXPECT_THAT(log, ElementsAre("works"));
}

TEST_F(LinuxBackgroundWorkerTest, StartsNoMoreThreadsWhileFourAreStuck) {
    for (std::size_t job = 1; job <= 4; ++job) {
        perform("stuck", stuck.work());
        ASSERT_TRUE(waitForLog(job));
        EXPECT_EQ(stuck.waiting(), static_cast<int>(job));
    }
    bool ran = false;
    perform("fifth", [&] { ran = true; });
    EXPECT_EQ(log.size(), 4U) << "not at once";
    ASSERT_TRUE(waitForLog(5));
    EXPECT_EQ(log.back(), "fifth given up");
    EXPECT_FALSE(ran);
    stuck.goOn();
    EXPECT_TRUE(waitUntil([&] {
        perform("again", [] {});
        return waitForLog(log.size() + 1) && log.back() == "again";
    }));
}

TEST_F(LinuxBackgroundWorkerTest, GivesUpWhereTheSystemGrantsNoThread) {
    {
        const testing::ThreadShortage shortage;
        perform("first", [] {});
        perform("second", [] {});
    }
    ASSERT_TRUE(waitForLog(2));
    EXPECT_THAT(log, ElementsAre("first given up", "second given up"));
    perform("third", [] {});
    ASSERT_TRUE(waitForLog(3));
    EXPECT_EQ(log.back(), "third");
}

TEST_F(LinuxBackgroundWorkerTest, LetsGoOfAStuckJobWhenItIsDestroyedAndDropsTheOthers) {
    auto token = std::make_shared<int>();
    const std::weak_ptr<int> queued = token;
    perform("stuck", stuck.work());
    perform("dropped", [held = std::move(token)] {});
    ASSERT_TRUE(waitUntil([&] { return stuck.waiting() == 1; }));
    worker.reset();
    EXPECT_EQ(stuck.waiting(), 1);
    EXPECT_TRUE(queued.expired());
    stuck.goOn();
    QCoreApplication::processEvents();
    EXPECT_TRUE(log.empty());
}

}  // namespace
}  // namespace zephrine
