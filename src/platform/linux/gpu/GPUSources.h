// SPDX-License-Identifier: MIT
// The one place where a driver's name leads to its source: a new maker's goes into `findSource`.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "platform/linux/base/MonotonicClock.h"
#include "platform/linux/gpu/GPUSource.h"
#include "platform/linux/gpu/GraphicsCards.h"
#include "platform/linux/gpu/PerfEvent.h"

namespace zephrine {

/// Where the system's parts are; tests put their own there.
struct GPUPlaces {
    std::string sys = "/sys";
    std::string proc = "/proc";
    std::string nvml = "libnvidia-ml.so.1";
    PerfOpener openPerf = openPerfEvent;
};

/// For those cards whose drivers publish something that this program can read. Each source may wait
/// for its driver. `clock` is read on several threads.
std::vector<GPUSourceMaker> findGPUSources(const std::vector<GraphicsCard>& cards,
                                           const GPUPlaces& places, const SecondsClock& clock);

}  // namespace zephrine
