// SPDX-License-Identifier: MIT
// The cost of one refresh beyond the counters' own: the sampler as a whole, the history, the texts,
// and the pictures that are drawn only when a text has changed.
#include <benchmark/benchmark.h>

#include "platform/linux/counters/LinuxHostCounters.h"
#include "platform/linux/gpu/LinuxGPURegistry.h"
#include "platform/qt/drawing/QtTextMeasure.h"
#include "platform/qt/drawing/RenderImage.h"
#include "sampling/History.h"
#include "sampling/Sampler.h"
#include "statusitem/SquareImage.h"
#include "statusitem/StatusImage.h"
#include "statusitem/StatusText.h"

namespace zephrine {
namespace {

constexpr MemoryReading memory{.used = 8ULL << 30U, .total = 16ULL << 30U};

StatusContent content() {
    return {.cpuText = cpuText(42),
            .ramText = ramText(memory, false),
            .cpuPercent = 42,
            .ramPercent = 50,
            .dot = Color::systemGreenColor};
}

void AllFourReadings(benchmark::State& state) {
    LinuxHostCounters host;
    LinuxGPURegistry gpus;
    Sampler sampler(host, gpus);
    for ([[maybe_unused]] auto iteration : state) {
        benchmark::DoNotOptimize(sampler.cpu());
        benchmark::DoNotOptimize(sampler.memory());
        benchmark::DoNotOptimize(sampler.gpu());
        benchmark::DoNotOptimize(sampler.pressure());
    }
}
BENCHMARK(AllFourReadings);

void AppendToAFullHistory(benchmark::State& state) {
    History history;
    double time = 0;
    for ([[maybe_unused]] auto iteration : state) {
        history.append({.time = time += 0.5, .cpu = 42, .ram = 50, .gpu = 5});
    }
}
BENCHMARK(AppendToAFullHistory);

void TextsKeyAndDescription(benchmark::State& state) {
    for ([[maybe_unused]] auto iteration : state) {
        const std::string cpu = cpuText(42);
        const std::string ram = ramText(memory, false);
        benchmark::DoNotOptimize(imageKey(cpu, ram, 9, MemoryPressure::normal, false));
        benchmark::DoNotOptimize(statusDescription(cpu, memory, MemoryPressure::normal));
    }
}
BENCHMARK(TextsKeyAndDescription);

void WidePictureAtTwice(benchmark::State& state) {
    const QtTextMeasure measure;
    for ([[maybe_unused]] auto iteration : state) {
        const Image image = statusImage(content(), measure);
        benchmark::DoNotOptimize(renderImage(image, 2, Appearance::aqua));
    }
}
BENCHMARK(WidePictureAtTwice);

void SquarePicture(benchmark::State& state) {
    const QtTextMeasure measure;
    for ([[maybe_unused]] auto iteration : state) {
        const Image image = squareImage(content(), static_cast<double>(state.range()), measure);
        benchmark::DoNotOptimize(renderImage(image, 1, Appearance::aqua));
    }
}
BENCHMARK(SquarePicture)->Arg(16)->Arg(24)->Arg(64);

}  // namespace
}  // namespace zephrine
