// SPDX-License-Identifier: MIT
#include "sampling/MemoryPressure.h"

#include <gtest/gtest.h>

#include <array>

namespace zephrine {
namespace {

struct Level {
    MemoryPressure pressure;
    std::int32_t number;
    const char* title;
    Color color;
};

constexpr std::array<Level, 4> levels{{
    {MemoryPressure::unknown, 0, "Unavailable", Color::secondaryLabelColor},
    {MemoryPressure::normal, 1, "Normal", Color::systemGreenColor},
    {MemoryPressure::warning, 2, "Elevated", Color::systemOrangeColor},
    {MemoryPressure::critical, 4, "High", Color::systemRedColor},
}};

TEST(MemoryPressure, HasANumberATitleAndAColorForEachLevel) {
    for (const Level& level : levels) {
        EXPECT_EQ(memoryPressure(level.number), level.pressure);
        EXPECT_EQ(rawValue(level.pressure), level.number);
        EXPECT_EQ(title(level.pressure), level.title);
        EXPECT_EQ(color(level.pressure), level.color);
    }
}

TEST(MemoryPressure, KnowsNoOtherNumbers) {
    for (const std::int32_t number : {3, 5, 8, -1, -4, 2147483647}) {
        EXPECT_EQ(memoryPressure(number), std::nullopt) << number;
    }
}

TEST(MemoryPressureDeathTest, ALevelThatIsNoneStopsTheProgram) {
    const auto none = static_cast<MemoryPressure>(3);
    EXPECT_DEATH(static_cast<void>(title(none)), "^$");
    EXPECT_DEATH(static_cast<void>(color(none)), "^$");
}

}  // namespace
}  // namespace zephrine
