// SPDX-License-Identifier: MIT
// What a refresh pays for graphics cards, on cards made of files, since few machines have them all:
// what is measured is this program's part and the kernel's, without the driver's.
#include <benchmark/benchmark.h>

#include <chrono>
#include <thread>

#include "platform/linux/gpu/DRMClientFiles.h"
#include "platform/linux/gpu/FakeCards.h"
#include "platform/linux/gpu/FakeNVML.h"
#include "platform/linux/gpu/LinuxGPURegistry.h"

namespace zephrine {
namespace {

using testing::FakeCards;
using testing::FakeNVML;

constexpr const char* kCard = "0000:01:00.0";

const Property* read(LinuxGPURegistry& registry, GPUService service) {
    return registry.IORegistryEntryCreateCFProperty(service, "PerformanceStatistics");
}

/// The main thread's part, at a pace that lets the background finish, as the refresh has it.
void readFromBackground(benchmark::State& state, LinuxGPURegistry& registry) {
    const GPUService service = registry.IOServiceGetMatchingServices("IOAccelerator")->at(0);
    std::this_thread::sleep_for(std::chrono::milliseconds(500));  // the background's first figure
    for ([[maybe_unused]] auto iteration : state) {
        const auto begin = std::chrono::steady_clock::now();
        benchmark::DoNotOptimize(read(registry, service));
        const std::chrono::duration<double> time = std::chrono::steady_clock::now() - begin;
        state.SetIterationTime(time.count());
        std::this_thread::sleep_for(std::chrono::milliseconds(5));
    }
}

void GPUFromSysfs(benchmark::State& state) {
    const FakeCards cards;
    cards.add(0, "amdgpu", kCard);
    cards.tree.write(FakeCards::device(kCard) + "gpu_busy_percent", "42\n");
    LinuxGPURegistry registry({.sys = cards.tree.root()});
    readFromBackground(state, registry);
}
BENCHMARK(GPUFromSysfs)->UseManualTime()->Iterations(500);

void GPUAsleep(benchmark::State& state) {
    const FakeCards cards;
    cards.add(0, "amdgpu", kCard, "suspended");
    LinuxGPURegistry registry({.sys = cards.tree.root()});
    readFromBackground(state, registry);
}
BENCHMARK(GPUAsleep)->UseManualTime()->Iterations(500);

void GPUFromNVML(benchmark::State& state) {
    const FakeCards cards;
    cards.add(0, "nvidia", kCard);
    const FakeNVML nvml;
    nvml.setUtilization(kCard, 42);
    LinuxGPURegistry registry({.sys = cards.tree.root(), .nvml = FakeNVML::library()});
    readFromBackground(state, registry);
}
BENCHMARK(GPUFromNVML)->UseManualTime()->Iterations(500);

/// The background's search for the clients of a card, among this machine's processes.
void GPUClientSearch(benchmark::State& state) {
    DRMClientFiles files("/proc", {"/dev/dri/card0", "/dev/dri/renderD128"});
    files.forEach([](std::string_view) {});  // the first pass, which looks at everything
    for ([[maybe_unused]] auto iteration : state) {
        files.forEach([](std::string_view fdinfo) { benchmark::DoNotOptimize(fdinfo); });
    }
}
BENCHMARK(GPUClientSearch);

}  // namespace
}  // namespace zephrine
