// SPDX-License-Identifier: MIT
// Why an idle card is left alone: each reading of amdgpu's sensor and of xe's fdinfo begins the
// driver's autosuspend delay (some 5 s) anew, so that a card asked every second never sleeps
// (pm_runtime_put_autosuspend in Documentation/power/runtime_pm.rst).
#include "platform/linux/gpu/AwakeSource.h"

#include <utility>

namespace zephrine {

AwakeSource::AwakeSource(const GraphicsCard& card, std::function<std::unique_ptr<GPUSource>()> make,
                         SecondsClock clock)
    : power_(card), make_(std::move(make)), clock_(std::move(clock)) {}

std::optional<double> AwakeSource::utilization() {
    if (!power_.isAwake()) {
        source_.reset();
        return std::nullopt;
    }
    const double now = clock_();
    if (now < restEnd_) {
        return std::nullopt;
    }
    if (!source_) {
        source_ = make_();
        source_->utilization();
        return std::nullopt;
    }
    const auto percent = source_->utilization();
    if (percent) {
        restAfter(*percent, now);
    }
    return percent;
}

void AwakeSource::restAfter(double percent, double now) {
    if (!idle_.reaches(percent)) {
        return;
    }
    const auto delay = power_.secondsToSleep();
    if (delay && !power_.drivesDisplay()) {
        restEnd_ = now + *delay + 1;
    }
}

}  // namespace zephrine
