// SPDX-License-Identifier: MIT
// Every timer keeps to the grid start + n × interval and may fire up to its tolerance behind each
// point. Waking at the earliest end of such a window fires all timers whose windows have begun.
#include "platform/linux/time/TimerQueue.h"

#include <algorithm>
#include <utility>

namespace zephrine {

namespace {

class QueuedTimer final : public Timer {
public:
    explicit QueuedTimer(std::shared_ptr<TimerQueue::Entry> entry) : entry_(std::move(entry)) {}
    ~QueuedTimer() override { entry_->cancelled = true; }
    QueuedTimer(const QueuedTimer&) = delete;
    QueuedTimer& operator=(const QueuedTimer&) = delete;

private:
    std::shared_ptr<TimerQueue::Entry> entry_;
};

}  // namespace

std::unique_ptr<Timer> TimerQueue::add(Time now, Time interval, Time tolerance,
                                       std::function<void()> action) {
    // A period below a millisecond would be a busy loop.
    interval = std::max<Time>(interval, std::chrono::milliseconds(1));
    tolerance = std::clamp(tolerance, Time::zero(), interval);
    auto entry =
        std::make_shared<Entry>(Entry{interval, tolerance, now + interval, std::move(action)});
    entries_.push_back(entry);
    return std::make_unique<QueuedTimer>(std::move(entry));
}

std::optional<TimerQueue::Time> TimerQueue::nextWake() const {
    std::optional<Time> wake;
    for (const auto& weak : entries_) {
        if (const auto entry = weak.lock(); entry && !entry->cancelled) {
            const Time latest = entry->due + entry->tolerance;
            wake = wake ? std::min(*wake, latest) : latest;
        }
    }
    return wake;
}

TimerQueue::Due TimerQueue::takeDue(Time now) {
    std::erase_if(entries_, [](const auto& weak) { return weak.expired(); });
    Due due;
    for (const auto& weak : entries_) {
        const auto entry = weak.lock();
        if (!entry || entry->cancelled || entry->due > now) {
            continue;
        }
        const auto periods = (now - entry->due) / entry->interval + 1;
        entry->due += periods * entry->interval;
        due.push_back(entry);
    }
    return due;
}

void TimerQueue::restart(Time now) {
    for (const auto& weak : entries_) {
        if (const auto entry = weak.lock()) {
            entry->due = now + entry->interval;
        }
    }
}

void TimerQueue::run(const Due& due) {
    for (const auto& entry : due) {
        if (entry->cancelled || entry->running) {
            continue;
        }
        entry->running = true;
        entry->action();
        entry->running = false;
    }
}

}  // namespace zephrine
