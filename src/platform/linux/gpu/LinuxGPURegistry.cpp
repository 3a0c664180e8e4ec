// SPDX-License-Identifier: MIT
// Discovery, and the drivers' sources as services. Whatever a driver takes its time for, or never
// answers, is read in the background.
#include "platform/linux/gpu/LinuxGPURegistry.h"

#include <utility>

namespace zephrine {

namespace {

/// One for each card, and some to spare for those that are stuck.
constexpr long kMostThreads = 8;

}  // namespace

LinuxGPURegistry::LinuxGPURegistry(GPUPlaces places, SecondsClock clock)
    : places_(std::move(places)),
      clock_(std::move(clock)),
      threads_("zephrine-gpu", kMostThreads) {}

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
    for (auto& source : findGPUSources(*found, places_, clock_)) {
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
    const auto utilization = card.source->utilization();
    if (!utilization) {
        return nullptr;
    }
    *card.utilization = *utilization;
    return &card.statistics;
}

void LinuxGPURegistry::IOObjectRelease(GPUService service) {
    cards_.erase(service);
}

GPUService LinuxGPURegistry::addCard(GPUSourceMaker source) {
    do {
        ++lastService_;
    } while (lastService_ == 0 || cards_.contains(lastService_));
    Card& card =
        cards_
            .emplace(lastService_,
                     Card{.source = std::make_unique<BackgroundSource>(std::move(source), threads_),
                          .statistics = PropertyDictionary(),
                          .utilization = nullptr})
            .first->second;
    auto& value = std::get<PropertyDictionary>(card.statistics)["Device Utilization %"];
    value = 0.0;
    card.utilization = &std::get<double>(value);
    card.source->utilization();  // opens the card now rather than at the first refresh
    return lastService_;
}

}  // namespace zephrine
