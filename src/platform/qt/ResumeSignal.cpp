// SPDX-License-Identifier: MIT
// A timerfd(2) on the wall clock that is never meant to expire: with TFD_TIMER_CANCEL_ON_SET the
// kernel cancels it when that clock jumps, which it does at every resume.
#include "platform/qt/ResumeSignal.h"

#include <sys/timerfd.h>
#include <unistd.h>

#include <cstdint>
#include <utility>

namespace zephrine {

ResumeSignal::ResumeSignal(std::function<void()> handler)
    : kernelTimer_(timerfd_create(CLOCK_REALTIME, TFD_NONBLOCK | TFD_CLOEXEC)),
      notifier_(kernelTimer_.get(), QSocketNotifier::Read) {
    QObject::connect(&notifier_, &QSocketNotifier::activated, &context_,
                     [this, resumed = std::move(handler)] {
                         std::uint64_t expirations = 0;
                         [[maybe_unused]] const auto size =
                             ::read(kernelTimer_.get(), &expirations, sizeof expirations);
                         arm();
                         resumed();
                     });
    arm();
}

void ResumeSignal::arm() {
    itimerspec never{};
    never.it_value.tv_sec = 8'000'000'000;  // the year 2223
    timerfd_settime(kernelTimer_.get(), TFD_TIMER_ABSTIME | TFD_TIMER_CANCEL_ON_SET, &never,
                    nullptr);
}

}  // namespace zephrine
