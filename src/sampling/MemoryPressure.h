// SPDX-License-Identifier: MIT
// The kernel's memory-pressure level, with the word and the colour that stand for it.
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

#include "platform/Color.h"

namespace zephrine {

/// Raw values are the kernel's level numbers, which have a gap at 3.
enum class MemoryPressure : std::int32_t { unknown = 0, normal = 1, warning = 2, critical = 4 };

/// The level with the number `rawValue`; absent when there is none.
std::optional<MemoryPressure> memoryPressure(std::int32_t rawValue);

std::int32_t rawValue(MemoryPressure pressure);

/// "Unavailable", "Normal", "Elevated" or "High".
std::string_view title(MemoryPressure pressure);

Color color(MemoryPressure pressure);

}  // namespace zephrine
