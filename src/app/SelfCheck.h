// SPDX-License-Identifier: MIT
// The self-test: fixed checks of the arithmetic against reference results, then live readings.
#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <ostream>
#include <span>
#include <string_view>

#include "platform/GPURegistry.h"
#include "platform/HostCounters.h"
#include "platform/ProcessTable.h"
#include "sampling/MemoryPressure.h"
#include "sampling/MemoryReading.h"

namespace zephrine {

/// One check with known inputs, exact to the last bit.
struct FixedCheck {
    std::string_view name;
    bool (*holds)();
};

/// In the order in which the self-test runs them.
std::span<const FixedCheck> fixedChecks();

struct LiveReadings {
    double cpu = 0;  ///< percent
    MemoryReading memory;
    std::optional<double> gpu;  ///< percent
    MemoryPressure pressure = MemoryPressure::unknown;
    std::size_t processCount = 0;
};

/// Prints the details, stops the program if the readings cannot be true, then prints the result.
void reportLiveReadings(const LiveReadings& readings, std::ostream& output);

struct SelfCheckEnvironment {
    HostCounters& host;
    GPURegistry& gpuRegistry;
    ProcessTable& processTable;
    std::function<void(double seconds)> sleepForTimeInterval;
    std::ostream& output;
    std::ostream& errors;
    std::span<const FixedCheck> checks = fixedChecks();
};

/// Runs the fixed checks, takes live readings one second apart and prints two lines. Returns only
/// when everything held; otherwise it ends the process abnormally, so that a script can take any
/// exit status but 0 for a failure.
void selfCheck(const SelfCheckEnvironment& environment);

}  // namespace zephrine
