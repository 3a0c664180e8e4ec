// SPDX-License-Identifier: MIT
// The one reader of machine-wide figures. It turns raw counters into readings, and every failure of
// the system into an absent one. Main thread only.
#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "platform/GPURegistry.h"
#include "platform/HostCounters.h"
#include "sampling/CPUTicks.h"
#include "sampling/MemoryPressure.h"
#include "sampling/MemoryReading.h"

namespace zephrine {

class Sampler {
public:
    /// Reads the size of physical memory, once and for all, and discovers the GPUs. Both
    /// collaborators must outlive the sampler.
    Sampler(HostCounters& host, GPURegistry& gpuRegistry);
    ~Sampler();
    Sampler(const Sampler&) = delete;
    Sampler& operator=(const Sampler&) = delete;

    /// CPU usage since the call before, in percent. Absent on the first call, after `resetCPU`,
    /// after a call that failed, and when no tick elapsed.
    std::optional<double> cpu();

    std::optional<MemoryReading> memory();

    /// `unknown` when the level cannot be read or is none that we know.
    MemoryPressure pressure();

    /// Utilisation of the busiest GPU, in percent, as its driver reports it.
    std::optional<double> gpu();

    /// Forgets the baseline of `cpu`, so that no average over a sleep is ever shown.
    void resetCPU();

    /// Looks the GPU services up again. Costly: at construction and after a wake-up only.
    void discoverGPU();

private:
    void releaseGPUServices();

    HostCounters& host_;
    GPURegistry& gpuRegistry_;
    std::optional<CPUTicks> previous_;
    std::vector<GPUService> gpuServices_;
    std::uint64_t totalMemory_;
};

}  // namespace zephrine
