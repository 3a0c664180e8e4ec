// SPDX-License-Identifier: MIT
// Intel's i915 driver counts how long each engine was busy, for those who may see such counters.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "platform/linux/base/FileDescriptor.h"
#include "platform/linux/gpu/BusyRate.h"
#include "platform/linux/gpu/GPUSource.h"
#include "platform/linux/gpu/PerfEvent.h"

namespace zephrine {

class I915PMU final : public GPUSource {
public:
    /// The counters of the card at `address` on the PCI bus; null when they cannot be opened.
    static std::unique_ptr<I915PMU> open(const std::string& sys, const std::string& address,
                                         const PerfOpener& openPerf);

    /// Of the engine that is busiest.
    std::optional<double> utilization() override;

private:
    struct Engine {
        FileDescriptor counter;
        BusyRate rate;
    };
    explicit I915PMU(std::vector<Engine> engines) : engines_(std::move(engines)) {}

    std::vector<Engine> engines_;
};

}  // namespace zephrine
