// SPDX-License-Identifier: MIT
// Stands in for the C library's clock_gettime in the whole test program. Only the monotonic clocks
// and those of threads and processes stand still in sleep (clock_gettime(2)).
#include "platform/linux/PretendedSleep.h"

#include <sys/syscall.h>
#include <unistd.h>

#include <atomic>

namespace {

std::atomic<std::time_t> asleep = 0;

bool goesOnInSleep(clockid_t clock) {
    return clock == CLOCK_BOOTTIME || clock == CLOCK_BOOTTIME_ALARM || clock == CLOCK_REALTIME ||
           clock == CLOCK_REALTIME_COARSE || clock == CLOCK_REALTIME_ALARM || clock == CLOCK_TAI;
}

}  // namespace

int clock_gettime(clockid_t clock, timespec* time) noexcept {
    const auto result = static_cast<int>(::syscall(SYS_clock_gettime, clock, time));
    if (result == 0 && goesOnInSleep(clock)) {
        time->tv_sec += asleep;
    }
    return result;
}

namespace zephrine::testing {

void pretendSleep(std::time_t seconds) {
    asleep += seconds;
}

}  // namespace zephrine::testing
