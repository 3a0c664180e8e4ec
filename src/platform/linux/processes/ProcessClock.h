// SPDX-License-Identifier: MIT
// A process's CPU clock: the time that all its threads together have run, in nanoseconds.
#pragma once

#include <cstdint>
#include <optional>

namespace zephrine {

/// Nanoseconds of CPU time; absent when no process has this pid. Works for everybody's processes,
/// opens no file, costs a quarter of a microsecond. Beware: for the number of the calling thread
/// the kernel answers as for its process.
std::optional<std::uint64_t> processCPUTime(std::int32_t pid);

/// CLOCK_MONOTONIC in nanoseconds.
std::uint64_t monotonicTime();

}  // namespace zephrine
