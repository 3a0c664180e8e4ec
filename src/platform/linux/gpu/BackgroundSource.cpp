// SPDX-License-Identifier: MIT
// What both threads use lives in one shared object, so that a thread that was let go still finds
// it.
#include "platform/linux/gpu/BackgroundSource.h"

#include <chrono>
#include <condition_variable>
#include <cstdint>
#include <mutex>
#include <system_error>
#include <utility>

#include "platform/linux/base/LowPriority.h"

namespace zephrine {

namespace {

using std::chrono::milliseconds;

constexpr milliseconds kPatience{20};
constexpr milliseconds kWarmUp{250};

}  // namespace

struct BackgroundSource::Exchange {
    std::mutex mutex;
    std::condition_variable changed;
    std::uint64_t asked = 0;     ///< calls so far
    std::uint64_t answered = 0;  ///< the call that `percent` answers
    std::optional<double> percent;
    bool stopping = false;
    bool ended = false;
};

BackgroundSource::BackgroundSource(std::unique_ptr<GPUSource> slow,
                                   std::shared_ptr<const void> presence)
    : exchange_(std::make_shared<Exchange>()),
      thread_(
          [exchange = exchange_, slow = std::move(slow), presence = std::move(presence)]() mutable {
              becomeLowPriorityThread("zephrine-gpu");
              run(*exchange, *slow);
              slow.reset();
              presence.reset();
              const std::lock_guard lock(exchange->mutex);
              exchange->ended = true;
              exchange->changed.notify_all();
          }) {}

BackgroundSource::~BackgroundSource() {
    bool ended = false;
    {
        std::unique_lock lock(exchange_->mutex);
        exchange_->stopping = true;
        exchange_->changed.notify_all();
        ended = exchange_->changed.wait_for(lock, kPatience, [this] { return exchange_->ended; });
    }
    if (ended) {
        thread_.join();
    } else {
        thread_.detach();
    }
}

std::optional<double> BackgroundSource::utilization() {
    const std::lock_guard lock(exchange_->mutex);
    const bool fresh = exchange_->asked - exchange_->answered <= 1;
    ++exchange_->asked;
    exchange_->changed.notify_all();
    return fresh ? exchange_->percent : std::nullopt;
}

void BackgroundSource::run(Exchange& exchange, GPUSource& slow) {
    std::unique_lock lock(exchange.mutex);
    const auto wanted = [&exchange] {
        return exchange.stopping || exchange.asked != exchange.answered;
    };
    // The first figure of many sources is none; taken a moment before, it costs nobody an interval.
    for (bool warm = false;; warm = true) {
        exchange.changed.wait(lock, wanted);
        if (exchange.stopping) {
            return;
        }
        const std::uint64_t request = exchange.asked;
        lock.unlock();
        const auto percent = slow.utilization();
        lock.lock();
        if (warm) {
            exchange.percent = percent;
            exchange.answered = request;
        } else {
            exchange.changed.wait_for(lock, kWarmUp, [&exchange] { return exchange.stopping; });
        }
    }
}

std::unique_ptr<GPUSource> BackgroundThreads::adopt(std::unique_ptr<GPUSource> source) {
    constexpr long kMost = 8;
    if (presence_.use_count() > kMost) {
        return nullptr;
    }
    try {
        return std::make_unique<BackgroundSource>(std::move(source), presence_);
    } catch (const std::system_error&) {
        return nullptr;
    }
}

}  // namespace zephrine
