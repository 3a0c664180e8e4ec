// SPDX-License-Identifier: MIT
// See the header. The clock's id is built as clock_getcpuclockid(3) builds it, but without the
// system call with which that checks it.
#include "platform/linux/processes/ProcessClock.h"

#include <ctime>

namespace zephrine {

namespace {

std::uint64_t nanoseconds(const timespec& time) {
    return (static_cast<std::uint64_t>(time.tv_sec) * 1'000'000'000U) +
           static_cast<std::uint64_t>(time.tv_nsec);
}

}  // namespace

std::optional<std::uint64_t> processCPUTime(std::int32_t pid) {
    constexpr unsigned kScheduledTime = 2;  // CPUCLOCK_SCHED in the kernel's posix-timers.h
    const unsigned id = (~static_cast<unsigned>(pid) << 3U) | kScheduledTime;
    timespec time{};
    if (pid < 1 || ::clock_gettime(static_cast<clockid_t>(id), &time) != 0) {
        return std::nullopt;
    }
    return nanoseconds(time);
}

std::uint64_t monotonicTime() {
    timespec time{};
    ::clock_gettime(CLOCK_MONOTONIC, &time);
    return nanoseconds(time);
}

}  // namespace zephrine
