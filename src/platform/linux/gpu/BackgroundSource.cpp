// SPDX-License-Identifier: MIT
// What both threads use lives in one shared object, so that a thread that was let go still finds
// it. While the questions keep to their rhythm, the main thread wakes nobody: the other one wakes
// by itself, once in each interval.
#include "platform/linux/gpu/BackgroundSource.h"

#include <condition_variable>
#include <mutex>
#include <utility>

#include "platform/linux/gpu/ReadingRhythm.h"

namespace zephrine {

namespace {

using Clock = std::chrono::steady_clock;

constexpr std::chrono::milliseconds kWarmUp{250};

}  // namespace

struct BackgroundSource::Exchange {
    std::mutex mutex;
    std::condition_variable changed;
    ReadingRhythm rhythm;
    bool wanted = true;    ///< at once, rather than when the rhythm says
    bool resting = false;  ///< until the next question
    bool stopping = false;
    std::optional<Clock::time_point> busySince = Clock::now();  ///< the reading that is under way
    std::optional<Clock::time_point> readAt;                    ///< when `percent` was asked for
    std::optional<double> percent;

    void run(GPUSource& slow);
    bool waitForTurn(std::unique_lock<std::mutex>& lock);
};

BackgroundSource::BackgroundSource(GPUSourceMaker make, LooseThreads& threads, Duration patience)
    : make_(std::move(make)),
      threads_(threads),
      patience_(patience),
      exchange_(std::make_shared<Exchange>()) {}

BackgroundSource::~BackgroundSource() {
    letGoOfThread();
}

std::optional<double> BackgroundSource::utilization() {
    const auto now = Clock::now();
    if (thread_ && isStuck(now)) {
        letGoOfThread();
        patience_ *= 2;
    }
    if (!thread_) {
        start();
    }
    const std::lock_guard lock(exchange_->mutex);
    exchange_->rhythm.noteQuestion(now);
    const bool fresh = exchange_->readAt && exchange_->rhythm.isFresh(*exchange_->readAt);
    exchange_->wanted = exchange_->wanted || !fresh;
    if (exchange_->wanted || exchange_->resting) {
        exchange_->changed.notify_all();
    }
    return fresh ? exchange_->percent : std::nullopt;
}

void BackgroundSource::start() {
    auto next = std::make_shared<Exchange>();
    next->rhythm = exchange_->rhythm;
    exchange_ = std::move(next);
    thread_ = threads_.start([exchange = exchange_, make = make_] {
        const auto slow = make();
        exchange->run(*slow);
    });
}

void BackgroundSource::letGoOfThread() {
    {
        const std::lock_guard lock(exchange_->mutex);
        exchange_->stopping = true;
        exchange_->changed.notify_all();
    }
    thread_.reset();
}

bool BackgroundSource::isStuck(Clock::time_point now) const {
    const std::lock_guard lock(exchange_->mutex);
    return exchange_->busySince && now - *exchange_->busySince > patience_;
}

void BackgroundSource::Exchange::run(GPUSource& slow) {
    // The first figure of many sources is none; taken a moment before, it costs nobody an interval.
    slow.utilization();
    std::unique_lock lock(mutex);
    busySince.reset();
    changed.wait_for(lock, kWarmUp, [this] { return stopping; });
    while (waitForTurn(lock)) {
        const auto begin = Clock::now();
        wanted = false;
        busySince = begin;
        lock.unlock();
        const auto reading = slow.utilization();
        lock.lock();
        busySince.reset();
        readAt = begin;
        percent = reading;
    }
}

bool BackgroundSource::Exchange::waitForTurn(std::unique_lock<std::mutex>& lock) {
    while (!stopping && !wanted) {
        const auto next = rhythm.nextReading(Clock::now());
        resting = !next;
        if (!next) {
            changed.wait(lock);
        } else if (changed.wait_until(lock, *next) == std::cv_status::timeout) {
            break;
        }
    }
    resting = false;
    return !stopping;
}

}  // namespace zephrine
