// SPDX-License-Identifier: MIT
// GPU services that a test makes up, with a count of the references that are held.
#pragma once

#include <string>
#include <utility>

#include "fakes/CallLog.h"
#include "platform/GPURegistry.h"

namespace zephrine {

class FakeGPURegistry : public GPURegistry {
public:
    explicit FakeGPURegistry(CallLog log = {}) : calls(std::move(log)) {}

    CallLog calls;
    struct Service {
        std::optional<Property> statistics;
        int references = 0;
    };
    std::vector<Service> services;
    bool lookUpFails = false;
    int lookUps = 0;
    int propertyReads = 0;
    std::string lastKey;

    /// Adds a service whose driver reports `value`.
    void addUtilization(std::variant<double, std::string> value) {
        services.push_back({.statistics = PropertyDictionary{{"Device Utilization %", value}}});
    }

    std::optional<std::vector<GPUService>> IOServiceGetMatchingServices(
        std::string_view name) override {
        calls.note("IOServiceGetMatchingServices");
        ++lookUps;
        if (lookUpFails) {
            return std::nullopt;
        }
        std::vector<GPUService> handles;
        if (name == "IOAccelerator") {
            for (GPUService i = 0; i < services.size(); ++i) {
                ++services[i].references;
                handles.push_back(i);
            }
        }
        return handles;
    }
    const Property* IORegistryEntryCreateCFProperty(GPUService service,
                                                    std::string_view key) override {
        calls.note("IORegistryEntryCreateCFProperty");
        ++propertyReads;
        lastKey = key;
        const auto& statistics = services.at(service).statistics;
        return statistics ? &*statistics : nullptr;
    }
    void IOObjectRelease(GPUService service) override {
        calls.note("IOObjectRelease");
        --services.at(service).references;
    }
};

}  // namespace zephrine
