// SPDX-License-Identifier: MIT
// Discovery, the rule about sleeping cards, and the drivers' sources brought together.
#include "platform/linux/gpu/LinuxGPURegistry.h"

#include <utility>

#include "platform/linux/gpu/DRMCards.h"

namespace zephrine {

LinuxGPURegistry::LinuxGPURegistry(std::string sys, SecondsClock clock)
    : sys_(std::move(sys)), clock_(std::move(clock)) {}

std::optional<std::vector<GPUService>> LinuxGPURegistry::IOServiceGetMatchingServices(
    std::string_view name) {
    std::vector<GPUService> services;
    if (name != "IOAccelerator") {
        return services;
    }
    const auto found = findDRMCards(sys_);
    if (!found) {
        return std::nullopt;
    }
    for (const DRMCard& card : *found) {
        // A card whose driver tells nothing is no service: nobody needs to ask it each second.
        if (auto source = makeGPUSource(card.driver, card.path)) {
            services.push_back(addCard(card.path, std::move(source)));
        }
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
    const double now = clock_();
    if (!card.power.mayBeRead(now)) {
        return nullptr;
    }
    const auto utilization = card.source->utilization();
    if (!utilization) {
        return nullptr;
    }
    card.power.noteUtilization(*utilization, now);
    *card.utilization = *utilization;
    return &card.statistics;
}

void LinuxGPURegistry::IOObjectRelease(GPUService service) {
    cards_.erase(service);
}

GPUService LinuxGPURegistry::addCard(const std::string& path, std::unique_ptr<GPUSource> source) {
    do {
        ++lastService_;
    } while (lastService_ == 0 || cards_.contains(lastService_));
    Card& card = cards_
                     .emplace(lastService_, Card{.power = GPUPower(path),
                                                 .source = std::move(source),
                                                 .statistics = PropertyDictionary(),
                                                 .utilization = nullptr})
                     .first->second;
    auto& value = std::get<PropertyDictionary>(card.statistics)["Device Utilization %"];
    value = 0.0;
    card.utilization = &std::get<double>(value);
    return lastService_;
}

}  // namespace zephrine
