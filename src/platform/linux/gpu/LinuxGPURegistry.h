// SPDX-License-Identifier: MIT
// Graphics cards as accelerator services. Each look-up makes services of its own, which live until
// they are released; a card that went away in between has no statistics.
#pragma once

#include <map>
#include <memory>
#include <string>

#include "platform/GPURegistry.h"
#include "platform/linux/base/MonotonicClock.h"
#include "platform/linux/gpu/GPUPower.h"
#include "platform/linux/gpu/GPUSource.h"

namespace zephrine {

class LinuxGPURegistry final : public GPURegistry {
public:
    /// `sys` is where that file system is mounted.
    explicit LinuxGPURegistry(std::string sys = "/sys", SecondsClock clock = monotonicSeconds);

    std::optional<std::vector<GPUService>> IOServiceGetMatchingServices(
        std::string_view name) override;
    const Property* IORegistryEntryCreateCFProperty(GPUService service,
                                                    std::string_view key) override;
    void IOObjectRelease(GPUService service) override;

private:
    struct Card {
        GPUPower power;
        std::unique_ptr<GPUSource> source;
        Property statistics;
        double* utilization;  ///< the one entry of `statistics`, updated in place
    };

    GPUService addCard(const std::string& path, std::unique_ptr<GPUSource> source);

    std::string sys_;
    SecondsClock clock_;
    std::map<GPUService, Card> cards_;
    GPUService lastService_ = 0;
};

}  // namespace zephrine
