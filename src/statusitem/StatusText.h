// SPDX-License-Identifier: MIT
// Every text that the status item shows or announces, as pure functions of the readings. The
// padding is part of the texts: it keeps the two lines of digits aligned.
#pragma once

#include <optional>
#include <string>

#include "sampling/MemoryPressure.h"
#include "sampling/MemoryReading.h"

namespace zephrine {

/// The value of the first line: a percentage of at least four characters, or "  — ".
std::string cpuText(std::optional<double> cpu);

/// The value of the second line: a percentage, or gigabytes used; "  — " when there is none.
std::string ramText(const std::optional<MemoryReading>& memory, bool ramInGB);

/// Everything that changes the drawn image, and nothing else: two equal keys, one image.
std::string imageKey(const std::string& cpuText, const std::string& ramText, double fontSize,
                     MemoryPressure pressure, bool isDark);

/// The one line that the item says aloud and shows as its tool tip.
std::string statusDescription(const std::string& cpuText,
                              const std::optional<MemoryReading>& memory, MemoryPressure pressure);

}  // namespace zephrine
