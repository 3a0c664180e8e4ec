// SPDX-License-Identifier: MIT
// CLOCK_MONOTONIC stands still while the machine is suspended, CLOCK_BOOTTIME does not.
#include "platform/linux/base/MonotonicClock.h"

#include <ctime>

namespace zephrine {

double monotonicSeconds() {
    timespec time{};
    ::clock_gettime(CLOCK_MONOTONIC, &time);
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) * 1e-9;
}

}  // namespace zephrine
