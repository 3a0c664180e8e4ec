// SPDX-License-Identifier: MIT
// Stall times alone mislead: a container that fights with its own limit drives the whole machine's
// figures up while nearly all of the memory is free. So each stall rule also asks how much memory
// is left.
#include "platform/linux/counters/PressureLevel.h"

#include <algorithm>

namespace zephrine {
namespace {

constexpr std::int32_t kNormal = 1;
constexpr std::int32_t kWarning = 2;
constexpr std::int32_t kCritical = 4;

constexpr double kShortestWindow = 2;  // seconds
constexpr double kHoldTime = 10;       // seconds

double percent(std::uint64_t part, std::uint64_t whole) {
    return static_cast<double>(part) / static_cast<double>(whole) * 100;
}

/// Available memory in percent of all; absent when it is unknown.
std::optional<double> availablePercent(const std::optional<Meminfo>& memory) {
    const auto available = memory ? availableMemory(*memory) : std::nullopt;
    if (!available || *memory->memTotal == 0) {
        return std::nullopt;
    }
    return percent(*available, *memory->memTotal);
}

bool isSwapNearlyFull(const Meminfo& memory) {
    return memory.swapFree && memory.swapTotal.value_or(0) > 0 &&
           percent(*memory.swapFree, *memory.swapTotal) < 10;
}

/// Microseconds of stall in percent of `seconds`.
double stallPercent(std::uint64_t from, std::uint64_t to, double seconds) {
    return std::min(static_cast<double>(to - from) / (seconds * 1e6) * 100, 100.0);
}

}  // namespace

std::optional<std::int32_t> PressureLevel::update(const std::optional<Meminfo>& memory,
                                                  const std::optional<StallTimes>& stalls,
                                                  double now) {
    if (stalls) {
        measure(*stalls, now);
    } else {
        windowStart_.reset();
        rates_.reset();
    }
    if (!stalls && !availablePercent(memory)) {
        return std::nullopt;
    }
    return held(levelNow(memory), now);
}

void PressureLevel::measure(const StallTimes& stalls, double now) {
    if (windowStart_) {
        const StallTimes& start = windowStart_->stalls;
        if (stalls.some < start.some || stalls.full < start.full) {
            rates_.reset();  // the counters began anew: what is known of the past means nothing
        } else {
            const double seconds = now - windowStart_->time;
            if (seconds < kShortestWindow) {
                return;
            }
            rates_ = StallRates{.some = stallPercent(start.some, stalls.some, seconds),
                                .full = stallPercent(start.full, stalls.full, seconds)};
        }
    }
    windowStart_ = Reading{.stalls = stalls, .time = now};
}

std::int32_t PressureLevel::levelNow(const std::optional<Meminfo>& memory) const {
    const auto available = availablePercent(memory);
    const auto below = [&](double limit) { return available && *available < limit; };
    // Stalls count where memory is short, or where nobody knows whether it is.
    const auto gate = [&](double limit) { return !available || *available < limit; };
    const StallRates rates = rates_.value_or(StallRates{});

    if (below(4) || (rates.full >= 10 && gate(25))) {
        return kCritical;
    }
    if (below(10) || ((rates.some >= 10 || rates.full >= 5) && gate(50))) {
        return kWarning;
    }
    // A kernel without stall times: swap that is nearly full is the next best sign.
    if (!windowStart_ && below(20) && isSwapNearlyFull(*memory)) {
        return kWarning;
    }
    return kNormal;
}

std::int32_t PressureLevel::held(std::int32_t level, double now) {
    if (level >= kCritical) {
        lastCritical_ = now;
    }
    if (level >= kWarning) {
        lastWarning_ = now;
    }
    const auto recent = [now](const std::optional<double>& time) {
        return time && now - *time < kHoldTime;
    };
    if (recent(lastCritical_)) {
        return kCritical;
    }
    return recent(lastWarning_) ? kWarning : kNormal;
}

}  // namespace zephrine
