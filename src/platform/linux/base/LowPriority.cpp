// SPDX-License-Identifier: MIT
// SCHED_BATCH, so that a wake-up does not preempt whoever runs, and a nice value.
#include "platform/linux/base/LowPriority.h"

#include <pthread.h>
#include <sched.h>
#include <sys/resource.h>

#include <csignal>

namespace zephrine {

void becomeLowPriorityThread(const char* name) {
    constexpr int kNiceValue = 10;
    const sched_param parameters{};
    ::pthread_setschedparam(::pthread_self(), SCHED_BATCH, &parameters);
    // On Linux the nice value belongs to the thread; 0 stands for the calling one (setpriority(2)).
    ::setpriority(PRIO_PROCESS, 0, kNiceValue);
    ::pthread_setname_np(::pthread_self(), name);
    sigset_t all;
    ::sigfillset(&all);
    ::pthread_sigmask(SIG_BLOCK, &all, nullptr);
}

}  // namespace zephrine
