// SPDX-License-Identifier: MIT
// The rule about sleeping cards around any source: one that is asleep is not asked and nothing of
// it stays open, one that has nothing to do is left alone for long enough to fall asleep.
#pragma once

#include <functional>
#include <memory>

#include "platform/linux/base/MonotonicClock.h"
#include "platform/linux/gpu/GPUPower.h"
#include "platform/linux/gpu/GPUSource.h"

namespace zephrine {

class AwakeSource final : public GPUSource {
public:
    /// `make` opens the card's source; called each time that the card is found to have woken. The
    /// first figure after that is dropped: it tells of the waking.
    AwakeSource(const GraphicsCard& card, std::function<std::unique_ptr<GPUSource>()> make,
                SecondsClock clock);

    std::optional<double> utilization() override;

private:
    void restAfter(double percent, double now);

    GPUPower power_;
    std::function<std::unique_ptr<GPUSource>()> make_;
    SecondsClock clock_;
    std::unique_ptr<GPUSource> source_;  ///< null while the card sleeps
    IdleCount idle_;
    double restEnd_ = 0;
};

}  // namespace zephrine
