// SPDX-License-Identifier: MIT
// The cost of the counters that each refresh asks for, read from this machine. A figure that could
// not be read is reported as an error: it would be cheap for the wrong reason.
#include <benchmark/benchmark.h>

#include "platform/linux/counters/LinuxHostCounters.h"
#include "platform/linux/gpu/LinuxGPURegistry.h"

namespace zephrine {
namespace {

void CPUTicksReading(benchmark::State& state) {
    LinuxHostCounters counters;
    for ([[maybe_unused]] auto iteration : state) {
        const auto ticks = counters.host_statistics();
        if (!ticks) {
            state.SkipWithError("no ticks");
            break;
        }
        benchmark::DoNotOptimize(ticks);
    }
}
BENCHMARK(CPUTicksReading);

void MemoryAndPressureReading(benchmark::State& state) {
    LinuxHostCounters counters;
    for ([[maybe_unused]] auto iteration : state) {
        const auto page = counters.host_page_size();
        const auto statistics = counters.host_statistics64();
        const auto level = counters.memorystatus_vm_pressure_level();
        if (!page || !statistics || !level) {
            state.SkipWithError("no memory figures");
            break;
        }
        benchmark::DoNotOptimize(statistics);
        benchmark::DoNotOptimize(level);
    }
}
BENCHMARK(MemoryAndPressureReading);

void GPUReading(benchmark::State& state) {
    LinuxGPURegistry registry;
    const auto services = registry.IOServiceGetMatchingServices("IOAccelerator");
    if (!services || services->empty()) {
        state.SkipWithError("no graphics card that tells its load");
        return;
    }
    for ([[maybe_unused]] auto iteration : state) {
        for (const GPUService service : *services) {
            benchmark::DoNotOptimize(
                registry.IORegistryEntryCreateCFProperty(service, "PerformanceStatistics"));
        }
    }
}
BENCHMARK(GPUReading);

void ProcessorCount(benchmark::State& state) {
    LinuxHostCounters counters;
    for ([[maybe_unused]] auto iteration : state) {
        benchmark::DoNotOptimize(counters.activeProcessorCount());
    }
}
BENCHMARK(ProcessorCount);

}  // namespace
}  // namespace zephrine
