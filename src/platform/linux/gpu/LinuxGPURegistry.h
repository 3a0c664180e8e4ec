// SPDX-License-Identifier: MIT
// Graphics cards as accelerator services. Each look-up makes services of its own, which live until
// they are released; a card that went away in between has no statistics.
#pragma once

#include <map>
#include <memory>

#include "platform/GPURegistry.h"
#include "platform/linux/base/MonotonicClock.h"
#include "platform/linux/gpu/BackgroundSource.h"
#include "platform/linux/gpu/GPUSources.h"

namespace zephrine {

class LinuxGPURegistry final : public GPURegistry {
public:
    /// `clock` is read on several threads.
    explicit LinuxGPURegistry(GPUPlaces places = {}, SecondsClock clock = monotonicSeconds);

    std::optional<std::vector<GPUService>> IOServiceGetMatchingServices(
        std::string_view name) override;
    const Property* IORegistryEntryCreateCFProperty(GPUService service,
                                                    std::string_view key) override;
    void IOObjectRelease(GPUService service) override;

private:
    struct Card {
        std::unique_ptr<BackgroundSource> source;
        Property statistics;
        double* utilization;  ///< the one entry of `statistics`, updated in place
    };

    GPUService addCard(GPUSourceMaker source);

    GPUPlaces places_;
    SecondsClock clock_;
    LooseThreads threads_;
    std::map<GPUService, Card> cards_;
    GPUService lastService_ = 0;
};

}  // namespace zephrine
