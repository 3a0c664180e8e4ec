// SPDX-License-Identifier: MIT
// Cards of many makers: their drivers count the work of each client, and tell it to the client's
// user. What other users do on the card stays unseen.
#pragma once

#include <string>

#include "platform/linux/base/MonotonicClock.h"
#include "platform/linux/gpu/ClientLoad.h"
#include "platform/linux/gpu/DRMClientFiles.h"
#include "platform/linux/gpu/GPUSource.h"
#include "platform/linux/gpu/GraphicsCards.h"

namespace zephrine {

class FdinfoSource final : public GPUSource {
public:
    /// `proc` is where that file system is mounted.
    FdinfoSource(const std::string& proc, const GraphicsCard& card, SecondsClock clock);

    /// Of the engine that is busiest; absent when no client is to be seen.
    std::optional<double> utilization() override;

private:
    std::string address_;
    SecondsClock clock_;
    DRMClientFiles files_;
    ClientLoad load_;
};

}  // namespace zephrine
