// SPDX-License-Identifier: MIT
// The difference of the two clocks, read so that a busy machine does not look like a sleeping one.
#include "platform/linux/time/SleepWatcher.h"

#include <time.h>  // NOLINT(modernize-deprecated-headers): clock_gettime is POSIX

#include <algorithm>
#include <utility>

namespace zephrine {

namespace {

SleepWatcher::Time read(clockid_t clock) {
    timespec time{};
    clock_gettime(clock, &time);
    return std::chrono::seconds(time.tv_sec) + std::chrono::nanoseconds(time.tv_nsec);
}

}  // namespace

SleepWatcher::SleepWatcher()
    : SleepWatcher(
          Clocks{[] { return read(CLOCK_BOOTTIME); }, [] { return read(CLOCK_MONOTONIC); }}) {}

SleepWatcher::SleepWatcher(Clocks clocks) : clocks_(std::move(clocks)), known_(timeAsleep()) {}

void SleepWatcher::observe(std::function<void()> handler) {
    handlers_.push_back(std::move(handler));
}

void SleepWatcher::check() {
    constexpr std::chrono::milliseconds shortest{500};
    const Time asleep = timeAsleep();
    if (asleep - known_ <= shortest) {
        return;
    }
    known_ = asleep;
    reported_ = true;
    report();
}

void SleepWatcher::hearOfWakeUp() {
    check();
    if (!std::exchange(reported_, false)) {
        report();
    }
}

void SleepWatcher::report() {
    const auto handlers = handlers_;
    for (const auto& handler : handlers) {
        handler();
    }
}

SleepWatcher::Time SleepWatcher::timeAsleep() const {
    // Being descheduled between the two readings can only make a difference too small: the
    // greatest of a few is right.
    Time longest = Time::min();
    for (int reading = 0; reading < 3; ++reading) {
        const Time boottime = clocks_.boottime();
        longest = std::max(longest, boottime - clocks_.monotonic());
    }
    return longest;
}

}  // namespace zephrine
