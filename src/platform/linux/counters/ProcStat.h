// SPDX-License-Identifier: MIT
// What /proc/stat says about the processors. The text may be cut off: the lines that matter here
// stand at its beginning, before interrupt counts that can be long.
#pragma once

#include <optional>
#include <string_view>

#include "platform/linux/counters/TickAccumulator.h"

namespace zephrine {

/// The sums over all processors from the "cpu" line. Absent when the line is missing, cut off, or
/// holds anything but numbers that fit.
std::optional<ProcessorTicks> parseProcessorTicks(std::string_view stat);

/// How many processors are online: the number of "cpuN" lines. Absent when there is none, or when
/// the text ends before a line of another kind has shown that all of them were seen.
std::optional<int> countProcessors(std::string_view stat);

}  // namespace zephrine
