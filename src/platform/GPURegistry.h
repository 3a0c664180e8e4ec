// SPDX-License-Identifier: MIT
// The registry of accelerator (GPU) services and the statistics that their drivers publish.
//
// Contract. Main thread only, and quick: a source that can be slow answers from a worker of its
// own. Reading a statistic never wakes a sleeping GPU nor keeps one awake: a GPU that is not awake
// has no statistics. Nothing throws.
#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace zephrine {

/// Stands for one service; holds one reference until it is released.
using GPUService = std::uint32_t;

using PropertyDictionary = std::map<std::string, std::variant<double, std::string>, std::less<>>;
using Property = std::variant<PropertyDictionary, double, std::string>;

class GPURegistry {
public:
    virtual ~GPURegistry() = default;

    /// All services of the class `name` ("IOAccelerator" are the GPUs), each with one reference
    /// that the caller releases. Absent when the look-up itself failed; empty when there are none.
    virtual std::optional<std::vector<GPUService>> IOServiceGetMatchingServices(
        std::string_view name) = 0;

    /// The service's property `key`, or null. What it points at stays the registry's and lives
    /// until the next call of any operation here. "PerformanceStatistics" is a dictionary whose
    /// entry "Device Utilization %" is a number, not yet checked.
    virtual const Property* IORegistryEntryCreateCFProperty(GPUService service,
                                                            std::string_view key) = 0;

    /// Drops the one reference that came with `service`.
    virtual void IOObjectRelease(GPUService service) = 0;
};

}  // namespace zephrine
