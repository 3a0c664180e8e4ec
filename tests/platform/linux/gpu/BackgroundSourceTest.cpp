// SPDX-License-Identifier: MIT
#include "platform/linux/gpu/BackgroundSource.h"

#include <gtest/gtest.h>

#include <atomic>
#include <condition_variable>
#include <mutex>
#include <vector>

#include "platform/linux/Eventually.h"

namespace zephrine {
namespace {

using testing::eventually;

/// What the test and its source share; outlives both, since a stuck thread may do so.
class Driver {
public:
    double ask() {
        std::unique_lock lock(mutex_);
        thread_ = std::this_thread::get_id();
        ++calls_;
        ++waiting_;
        changed_.wait(lock, [this] { return !stuck_; });
        --waiting_;
        return percent_;
    }
    void setStuck(bool stuck) {
        const std::lock_guard lock(mutex_);
        stuck_ = stuck;
        changed_.notify_all();
    }
    void setPercent(double percent) { set(percent_, percent); }
    void noteEnd() { set(ended_, true); }

    int calls() { return get(calls_); }
    int waiting() { return get(waiting_); }
    bool ended() { return get(ended_); }
    std::thread::id thread() { return get(thread_); }

private:
    template <typename Value>
    Value get(const Value& value) {
        const std::lock_guard lock(mutex_);
        return value;
    }
    template <typename Value>
    void set(Value& value, Value newValue) {
        const std::lock_guard lock(mutex_);
        value = newValue;
    }

    std::mutex mutex_;
    std::condition_variable changed_;
    bool stuck_ = false;
    int waiting_ = 0;
    int calls_ = 0;
    bool ended_ = false;
    double percent_ = 40;
    std::thread::id thread_;
};

class SlowSource final : public GPUSource {
public:
    explicit SlowSource(std::shared_ptr<Driver> driver) : driver_(std::move(driver)) {}
    ~SlowSource() override { driver_->noteEnd(); }
    SlowSource(const SlowSource&) = delete;
    SlowSource& operator=(const SlowSource&) = delete;
    std::optional<double> utilization() override { return driver_->ask(); }

private:
    std::shared_ptr<Driver> driver_;
};

class BackgroundSourceTest : public ::testing::Test {
protected:
    BackgroundSourceTest() { start(); }
    void TearDown() override { driver->setStuck(false); }

    void start() { source = threads.adopt(std::make_unique<SlowSource>(driver)); }
    [[nodiscard]] bool isStuck() const { return driver->waiting() > 0; }
    /// Answers one question and waits for it.
    std::optional<double> next(double percent) {
        driver->setPercent(percent);
        return eventually([this, percent] {
            const auto answer = source->utilization();
            return answer == percent ? answer : std::nullopt;
        });
    }

    std::shared_ptr<Driver> driver = std::make_shared<Driver>();
    BackgroundThreads threads;
    std::unique_ptr<GPUSource> source;
};

TEST_F(BackgroundSourceTest, AsksOnAnotherThread) {
    EXPECT_EQ(next(40), 40.0);
    EXPECT_NE(driver->thread(), std::this_thread::get_id());
}

TEST_F(BackgroundSourceTest, GivesTheLatestFigure) {
    EXPECT_EQ(next(40), 40.0);
    EXPECT_EQ(next(50), 50.0);
    EXPECT_EQ(next(60), 60.0);
}

TEST_F(BackgroundSourceTest, AsksNothingUnlessItIsAskedItself) {
    source->utilization();
    EXPECT_TRUE(eventually([this] { return driver->calls() == 2; }));
    source->utilization();
    EXPECT_TRUE(eventually([this] { return driver->calls() == 3; }));
    std::this_thread::sleep_for(std::chrono::milliseconds(50));
    EXPECT_EQ(driver->calls(), 3);
}

TEST_F(BackgroundSourceTest, KeepsAFigureForOneIntervalMoreWhenTheNextOneIsLate) {
    ASSERT_EQ(next(40), 40.0);
    ASSERT_TRUE(eventually([this] { return !isStuck(); }));
    driver->setStuck(true);
    // Answered already, or on its way: one of these questions meets the stuck driver.
    ASSERT_TRUE(eventually([this] {
        source->utilization();
        return isStuck();
    }));
    source->utilization();
    source->utilization();
    EXPECT_EQ(source->utilization(), std::nullopt);
    EXPECT_EQ(source->utilization(), std::nullopt);
    driver->setStuck(false);
    EXPECT_EQ(next(70), 70.0);
}

TEST_F(BackgroundSourceTest, EndsItsThreadWithItself) {
    ASSERT_EQ(next(40), 40.0);
    source.reset();
    EXPECT_TRUE(eventually([this] { return driver->ended(); }));
}

TEST_F(BackgroundSourceTest, LetsGoOfAThreadThatIsStuckInItsDriver) {
    driver->setStuck(true);
    source->utilization();
    ASSERT_TRUE(eventually([this] { return isStuck(); }));
    source.reset();  // does not wait for the driver
    EXPECT_FALSE(driver->ended());
    driver->setStuck(false);
    EXPECT_TRUE(eventually([this] { return driver->ended(); }));
}

TEST_F(BackgroundSourceTest, StartsNoMoreThreadsWhenTooManyAreStuck) {
    driver->setStuck(true);
    int started = 0;
    for (; source && started < 100; ++started) {
        source->utilization();
        ASSERT_TRUE(eventually([this, started] { return driver->waiting() == started + 1; }));
        start();
    }
    EXPECT_EQ(started, 8);
    driver->setStuck(false);
    EXPECT_TRUE(eventually([this] {
        start();
        return source != nullptr;
    }));
}

}  // namespace
}  // namespace zephrine
