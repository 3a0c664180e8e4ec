// SPDX-License-Identifier: MIT
#include "platform/linux/gpu/BackgroundSource.h"

#include <gtest/gtest.h>

#include <atomic>
#include <condition_variable>
#include <mutex>
#include <thread>
#include <utility>

#include "platform/linux/FakeTree.h"
#include "platform/linux/HangingFile.h"
#include "platform/linux/ThreadShortage.h"

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
    void TearDown() override { driver->setStuck(false); }

    std::unique_ptr<GPUSource> make(std::chrono::milliseconds patience = std::chrono::hours(1)) {
        return std::make_unique<BackgroundSource>(
            [driver = driver] { return std::make_unique<SlowSource>(driver); }, threads, patience);
    }
    [[nodiscard]] bool isStuck() const { return driver->waiting() > 0; }
    /// The source's figure once it is `percent`.
    std::optional<double> next(double percent) {
        driver->setPercent(percent);
        return eventually([this, percent] {
            const auto answer = source->utilization();
            return answer == percent ? answer : std::nullopt;
        });
    }
    /// Asks so often that it can learn the interval.
    void askInRhythm() {
        for (int question = 0; question < 3; ++question) {
            source->utilization();
            std::this_thread::sleep_for(std::chrono::milliseconds(120));
        }
    }

    std::shared_ptr<Driver> driver = std::make_shared<Driver>();
    LooseThreads threads{"zephrine-test", 8};
    std::unique_ptr<GPUSource> source = make();
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

TEST_F(BackgroundSourceTest, AsksByItselfOnceItKnowsTheIntervalAndStopsWhenNobodyAsksIt) {
    askInRhythm();
    const int before = driver->calls();
    EXPECT_TRUE(eventually([&] { return driver->calls() >= before + 3; }));
    EXPECT_TRUE(eventually([this, last = -1]() mutable {
        std::this_thread::sleep_for(std::chrono::milliseconds(500));
        return std::exchange(last, driver->calls()) == last;
    }));
    EXPECT_EQ(next(50), 50.0);
}

TEST_F(BackgroundSourceTest, HasNoFigureWhileItsDriverIsStuckAndOneAgainAfterwards) {
    ASSERT_EQ(next(40), 40.0);
    driver->setStuck(true);
    ASSERT_TRUE(eventually([this] {
        source->utilization();
        return isStuck();
    }));
    source->utilization();
    EXPECT_EQ(source->utilization(), std::nullopt);
    EXPECT_EQ(source->utilization(), std::nullopt);
    driver->setStuck(false);
    EXPECT_EQ(next(70), 70.0);
}

TEST_F(BackgroundSourceTest, TriesAnewInAnotherThreadWhenOneHasBeenStuckForLong) {
    source = make(std::chrono::milliseconds(50));
    ASSERT_EQ(next(40), 40.0);
    driver->setStuck(true);
    ASSERT_TRUE(eventually([this] {
        source->utilization();
        return driver->waiting() == 2;
    }));
    driver->setStuck(false);
    EXPECT_EQ(next(70), 70.0);
}

TEST_F(BackgroundSourceTest, GetsOverAFileThatNeverAnswers) {
    struct FileSource final : GPUSource {
        explicit FileSource(const testing::HangingFile& sensor) : file(sensor) {}
        std::optional<double> utilization() override {
            file.read();
            return 30;
        }
        const testing::HangingFile& file;
    };
    const testing::FakeTree tree;
    const testing::HangingFile file(tree.path("gpu_busy_percent"));
    std::atomic<bool> opened = false;
    BackgroundSource hanging(
        [&]() -> std::unique_ptr<GPUSource> {
            if (opened.exchange(true)) {
                return std::make_unique<SlowSource>(driver);
            }
            return std::make_unique<FileSource>(file);
        },
        threads, std::chrono::milliseconds(50));
    EXPECT_TRUE(eventually([&] { return hanging.utilization() == 40; }));
}

TEST_F(BackgroundSourceTest, HasNoFigureWithoutAThreadAndAsksForOneAgain) {
    {
        const testing::ThreadShortage shortage;
        EXPECT_EQ(source->utilization(), std::nullopt);
        EXPECT_EQ(source->utilization(), std::nullopt);
    }
    EXPECT_EQ(next(40), 40.0);
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

TEST_F(BackgroundSourceTest, HasNoFigureWhileTooManyThreadsAreStuckAndOneAgainAfterwards) {
    driver->setStuck(true);
    for (int stuck = 1; stuck <= 8; ++stuck) {
        source->utilization();
        ASSERT_TRUE(eventually([this, stuck] { return driver->waiting() == stuck; }));
        source = make();
    }
    EXPECT_EQ(source->utilization(), std::nullopt);
    driver->setStuck(false);
    EXPECT_EQ(next(40), 40.0);
}

}  // namespace
}  // namespace zephrine
