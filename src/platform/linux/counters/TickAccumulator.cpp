// SPDX-License-Identifier: MIT
// Idle and iowait are documented to step back (proc(5)); others do when a processor goes offline.
#include "platform/linux/counters/TickAccumulator.h"

#include <algorithm>
#include <array>

namespace zephrine {
namespace {

constexpr std::array kCounts{&ProcessorTicks::user, &ProcessorTicks::system, &ProcessorTicks::idle,
                             &ProcessorTicks::nice};

/// Half of the range of a published counter; 4096 processors at 1000 Hz take nine minutes to it.
constexpr std::uint64_t kLargestStep = std::uint64_t{1} << 31;

bool isStepForward(const ProcessorTicks& from, const ProcessorTicks& to) {
    return std::ranges::all_of(kCounts, [&](auto count) {
        return to.*count >= from.*count && to.*count - from.*count < kLargestStep;
    });
}

}  // namespace

HostCPULoadInfo TickAccumulator::add(const ProcessorTicks& reading) {
    if (!previous_) {
        total_ = reading;
    } else if (isStepForward(*previous_, reading)) {
        for (const auto count : kCounts) {
            total_.*count += reading.*count - (*previous_).*count;
        }
    }
    previous_ = reading;

    HostCPULoadInfo published{};
    published[CPU_STATE_USER] = static_cast<std::uint32_t>(total_.user);
    published[CPU_STATE_SYSTEM] = static_cast<std::uint32_t>(total_.system);
    published[CPU_STATE_IDLE] = static_cast<std::uint32_t>(total_.idle);
    published[CPU_STATE_NICE] = static_cast<std::uint32_t>(total_.nice);
    return published;
}

}  // namespace zephrine
