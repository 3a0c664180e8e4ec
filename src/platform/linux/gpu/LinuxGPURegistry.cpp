// SPDX-License-Identifier: MIT
// Discovery, and the drivers' sources as services.
#include "platform/linux/gpu/LinuxGPURegistry.h"

#include <utility>

namespace zephrine {

LinuxGPURegistry::LinuxGPURegistry(GPUPlaces places, SecondsClock clock)
    : places_(std::move(places)), clock_(std::move(clock)) {}

std::optional<std::vector<GPUService>> LinuxGPURegistry::IOServiceGetMatchingServices(
    std::string_view name) {
    std::vector<GPUService> services;
    if (name != "IOAccelerator") {
        return services;
    }
    const auto found = findGraphicsCards(places_.sys);
    if (!found) {
        return std::nullopt;
    }
    // A card whose driver tells nothing is no service: nobody needs to ask it each second.
    for (auto& source : makeGPUSources(*found, places_, clock_, threads_)) {
        services.push_back(addCard(std::move(source)));
    }
    return services;
}

const Property* LinuxGPURegistry::IORegistryEntryCreateCFProperty(GPUService service,
                                                                  std::string_view key) {
    const auto found = cards_.find(service);
    if (found == cards_.end() || key != "PerformanceStatistics") {
        return nullptr;
    }
    Card& card = found->second;
    const auto utilization = read(card);
    if (!utilization) {
        return nullptr;
    }
    *card.utilization = *utilization;
    return &card.statistics;
}

void LinuxGPURegistry::IOObjectRelease(GPUService service) {
    cards_.erase(service);
}

GPUService LinuxGPURegistry::addCard(std::unique_ptr<GPUSource> source) {
    do {
        ++lastService_;
    } while (lastService_ == 0 || cards_.contains(lastService_));
    Card& card = cards_
                     .emplace(lastService_, Card{.source = std::move(source),
                                                 .statistics = PropertyDictionary(),
                                                 .utilization = nullptr})
                     .first->second;
    auto& value = std::get<PropertyDictionary>(card.statistics)["Device Utilization %"];
    value = 0.0;
    card.utilization = &std::get<double>(value);
    read(card);  // the first figure is dropped, here rather than at the first refresh
    return lastService_;
}

/// A source that was slow once goes on in the background: the refresh never waits for it again.
std::optional<double> LinuxGPURegistry::read(Card& card) {
    constexpr double kSlow = 0.02;
    if (!card.source) {
        return std::nullopt;
    }
    const double begin = clock_();
    const auto utilization = card.source->utilization();
    if (card.source->mayBlock() && clock_() - begin > kSlow) {
        card.source = threads_.adopt(std::move(card.source));
    }
    return utilization;
}

}  // namespace zephrine
