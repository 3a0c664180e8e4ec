// SPDX-License-Identifier: MIT
// All of NVIDIA's cards together: their library attaches to more than the one card that it is asked
// about, so it may be started only while none of them sleeps, and for all of them or none.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "platform/linux/base/MonotonicClock.h"
#include "platform/linux/gpu/GPUPower.h"
#include "platform/linux/gpu/GPUSource.h"
#include "platform/linux/gpu/NVML.h"

namespace zephrine {

class NvidiaSource final : public GPUSource {
public:
    /// `library` is the file name or path of NVIDIA's management library.
    NvidiaSource(const std::vector<GraphicsCard>& cards, std::string library, SecondsClock clock);

    /// Of the card that is busiest. The first figure after the library was started is dropped.
    std::optional<double> utilization() override;

private:
    struct Card {
        std::string address;
        GPUPower power;
        IdleCount idle;
    };
    bool allAwake();
    std::optional<double> readAll(double now);
    [[nodiscard]] bool drivesDisplay(const Card& card) const;
    void rest(double now);

    std::vector<Card> cards_;
    std::string library_;
    SecondsClock clock_;
    std::unique_ptr<NVML> nvml_;  ///< null while the cards are left alone
    double restEnd_ = 0;
};

}  // namespace zephrine
