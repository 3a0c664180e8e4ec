// SPDX-License-Identifier: MIT
#include "sampling/MemoryPressure.h"

#include "platform/Trap.h"

namespace zephrine {

std::optional<MemoryPressure> memoryPressure(std::int32_t rawValue) {
    switch (rawValue) {
        case 0:
            return MemoryPressure::unknown;
        case 1:
            return MemoryPressure::normal;
        case 2:
            return MemoryPressure::warning;
        case 4:
            return MemoryPressure::critical;
        default:
            return std::nullopt;
    }
}

std::int32_t rawValue(MemoryPressure pressure) {
    return static_cast<std::int32_t>(pressure);
}

std::string_view title(MemoryPressure pressure) {
    switch (pressure) {
        case MemoryPressure::unknown:
            return "Unavailable";
        case MemoryPressure::normal:
            return "Normal";
        case MemoryPressure::warning:
            return "Elevated";
        case MemoryPressure::critical:
            return "High";
    }
    trap();
}

Color color(MemoryPressure pressure) {
    switch (pressure) {
        case MemoryPressure::unknown:
            return Color::secondaryLabelColor;
        case MemoryPressure::normal:
            return Color::systemGreenColor;
        case MemoryPressure::warning:
            return Color::systemOrangeColor;
        case MemoryPressure::critical:
            return Color::systemRedColor;
    }
    trap();
}

}  // namespace zephrine
