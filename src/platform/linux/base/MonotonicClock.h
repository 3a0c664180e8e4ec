// SPDX-License-Identifier: MIT
// The clock that the counters are measured against, and the form in which tests replace it.
#pragma once

#include <functional>

namespace zephrine {

/// Seconds since boot without the time asleep (CLOCK_MONOTONIC).
double monotonicSeconds();

using SecondsClock = std::function<double()>;

}  // namespace zephrine
