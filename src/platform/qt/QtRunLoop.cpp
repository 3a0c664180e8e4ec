// SPDX-License-Identifier: MIT
// One timerfd(2) on CLOCK_MONOTONIC, watched by the event loop, which also runs nested loops.
#include "platform/qt/QtRunLoop.h"

#include <sys/timerfd.h>
#include <unistd.h>

#include <QMetaObject>
#include <algorithm>
#include <chrono>
#include <cstdint>
#include <utility>

namespace zephrine {

namespace {

using Time = TimerQueue::Time;

Time now() {
    return std::chrono::steady_clock::now().time_since_epoch();
}

/// Seconds as the queue counts; what is no length of time counts as nothing.
Time fromSeconds(double seconds) {
    constexpr double longest = 1e9;
    const double bounded = seconds > 0 ? std::min(seconds, longest) : 0;
    return std::chrono::duration_cast<Time>(std::chrono::duration<double>(bounded));
}

}  // namespace

QtRunLoop::QtRunLoop(std::function<void()> beforeTimers)
    : beforeTimers_(std::move(beforeTimers)),
      kernelTimer_(timerfd_create(CLOCK_MONOTONIC, TFD_NONBLOCK | TFD_CLOEXEC)),
      notifier_(kernelTimer_.get(), QSocketNotifier::Read) {
    QObject::connect(&notifier_, &QSocketNotifier::activated, &mainThread_, [this] { wake(); });
}

std::unique_ptr<Timer> QtRunLoop::scheduleTimer(Seconds interval, Seconds tolerance,
                                                std::function<void()> action) {
    auto timer = queue_.add(now(), fromSeconds(interval.count()), fromSeconds(tolerance.count()),
                            std::move(action));
    arm();
    return timer;
}

void QtRunLoop::performOnMain(std::function<void()> work) {
    QMetaObject::invokeMethod(&mainThread_, std::move(work), Qt::QueuedConnection);
}

void QtRunLoop::restartTimers() {
    queue_.restart(now());
    arm();
}

void QtRunLoop::wake() {
    std::uint64_t expirations = 0;
    [[maybe_unused]] const auto size = ::read(kernelTimer_.get(), &expirations, sizeof expirations);
    if (beforeTimers_) {
        beforeTimers_();
    }
    const TimerQueue::Due due = queue_.takeDue(now());
    arm();  // first: an action may run a loop of its own
    TimerQueue::run(due);
}

void QtRunLoop::arm() {
    itimerspec when{};  // all zero: disarmed
    if (const auto wake = queue_.nextWake()) {
        const auto seconds = std::chrono::duration_cast<std::chrono::seconds>(*wake);
        when.it_value.tv_sec = seconds.count();
        when.it_value.tv_nsec = (*wake - seconds).count();
    }
    timerfd_settime(kernelTimer_.get(), TFD_TIMER_ABSTIME, &when, nullptr);
}

}  // namespace zephrine
