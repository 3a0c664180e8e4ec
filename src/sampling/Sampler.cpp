// SPDX-License-Identifier: MIT
#include "sampling/Sampler.h"

#include <cmath>

namespace zephrine {

namespace {

/// The utilisation in a service's statistics (null: none); absent when it is missing or cannot be
/// true.
std::optional<double> utilization(const Property* statistics) {
    const auto* dictionary = std::get_if<PropertyDictionary>(statistics);
    if (dictionary == nullptr) {
        return std::nullopt;
    }
    const auto entry = dictionary->find("Device Utilization %");
    if (entry == dictionary->end()) {
        return std::nullopt;
    }
    const double* percent = std::get_if<double>(&entry->second);
    if (percent == nullptr || !std::isfinite(*percent) || *percent < 0 || *percent > 100) {
        return std::nullopt;
    }
    return *percent;
}

}  // namespace

Sampler::Sampler(HostCounters& host, GPURegistry& gpuRegistry)
    : host_(host), gpuRegistry_(gpuRegistry), totalMemory_(host.physicalMemory()) {
    discoverGPU();
}

Sampler::~Sampler() {
    releaseGPUServices();
}

std::optional<double> Sampler::cpu() {
    const auto counters = host_.host_statistics();
    if (!counters) {
        previous_.reset();
        return std::nullopt;
    }
    const CPUTicks current{.user = (*counters)[CPU_STATE_USER],
                           .system = (*counters)[CPU_STATE_SYSTEM],
                           .idle = (*counters)[CPU_STATE_IDLE],
                           .nice = (*counters)[CPU_STATE_NICE]};
    const auto usage = previous_ ? current.usage(*previous_) : std::nullopt;
    previous_ = current;
    return usage;
}

std::optional<MemoryReading> Sampler::memory() {
    if (totalMemory_ == 0) {
        return std::nullopt;
    }
    const auto pageSize = host_.host_page_size();
    if (!pageSize) {
        return std::nullopt;
    }
    const auto stats = host_.host_statistics64();
    if (!stats) {
        return std::nullopt;
    }
    return MemoryReading{.used = MemoryReading::usedBytes(*stats, *pageSize, totalMemory_),
                         .total = totalMemory_};
}

MemoryPressure Sampler::pressure() {
    const auto level = host_.memorystatus_vm_pressure_level();
    return level ? memoryPressure(*level).value_or(MemoryPressure::unknown)
                 : MemoryPressure::unknown;
}

std::optional<double> Sampler::gpu() {
    std::optional<double> busiest;
    for (const GPUService service : gpuServices_) {
        const auto value = utilization(
            gpuRegistry_.IORegistryEntryCreateCFProperty(service, "PerformanceStatistics"));
        if (value && (!busiest || *value > *busiest)) {
            busiest = value;
        }
    }
    return busiest;
}

void Sampler::resetCPU() {
    previous_.reset();
}

void Sampler::discoverGPU() {
    releaseGPUServices();
    if (auto services = gpuRegistry_.IOServiceGetMatchingServices("IOAccelerator")) {
        gpuServices_ = std::move(*services);
    }
}

void Sampler::releaseGPUServices() {
    for (const GPUService service : gpuServices_) {
        gpuRegistry_.IOObjectRelease(service);
    }
    gpuServices_.clear();
}

}  // namespace zephrine
