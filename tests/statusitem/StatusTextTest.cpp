// SPDX-License-Identifier: MIT
#include "statusitem/StatusText.h"

#include <gtest/gtest.h>

namespace zephrine {
namespace {

constexpr std::uint64_t gigabyte = 1ULL << 30U;
constexpr MemoryReading sixteen{.used = 8482560410, .total = 16 * gigabyte};  // 7.9 GB

TEST(StatusText, CPUIsAlwaysAtLeastFourCharacters) {
    EXPECT_EQ(cpuText(5), "  5%");
    EXPECT_EQ(cpuText(42), " 42%");
    EXPECT_EQ(cpuText(99.6), "100%");
    EXPECT_EQ(cpuText(0.4), "  0%");
    EXPECT_EQ(cpuText(std::nullopt), "  — ");
}

TEST(StatusText, RAMIsAPercentageOrGigabytes) {
    EXPECT_EQ(ramText(MemoryReading{.used = 63, .total = 100}, false), " 63%");
    EXPECT_EQ(ramText(sixteen, true), " 7.9G");
    EXPECT_EQ(ramText(MemoryReading{.used = gigabyte * 123 / 10, .total = 16 * gigabyte}, true),
              "12.3G");
}

TEST(StatusText, ALargeMemoryWidensTheText) {
    EXPECT_EQ(ramText(MemoryReading{.used = 128 * gigabyte, .total = 256 * gigabyte}, true),
              "128.0G");
}

TEST(StatusText, AbsentMemoryIsADashInEitherForm) {
    EXPECT_EQ(ramText(std::nullopt, false), "  — ");
    EXPECT_EQ(ramText(std::nullopt, true), "  — ");
}

TEST(StatusText, TheKeyHoldsWhatChangesTheImage) {
    EXPECT_EQ(imageKey(" 12%", " 63%", 9, MemoryPressure::normal, false), " 12%- 63%-9.0-1-false");
    EXPECT_EQ(imageKey(" 12%", " 63%", 9, MemoryPressure::normal, true), " 12%- 63%-9.0-1-true");
    EXPECT_EQ(imageKey("  5%", " 7.9G", 10, MemoryPressure::critical, true),
              "  5%- 7.9G-10.0-4-true");
    EXPECT_EQ(imageKey("  — ", "  — ", 8, MemoryPressure::unknown, false), "  — -  — -8.0-0-false");
}

TEST(StatusText, TheDescriptionSaysItAllInOneLine) {
    EXPECT_EQ(statusDescription("  5%", sixteen, MemoryPressure::normal),
              "CPU   5%, RAM 7.9 of 16 GB, memory pressure Normal");
    EXPECT_EQ(statusDescription(" 42%", sixteen, MemoryPressure::warning),
              "CPU  42%, RAM 7.9 of 16 GB, memory pressure Elevated");
    EXPECT_EQ(statusDescription("100%", sixteen, MemoryPressure::critical),
              "CPU 100%, RAM 7.9 of 16 GB, memory pressure High");
}

TEST(StatusText, TheDescriptionNamesWhatIsMissing) {
    EXPECT_EQ(statusDescription("  — ", sixteen, MemoryPressure::normal).substr(0, 15),
              "CPU   — , RAM");
    EXPECT_EQ(statusDescription("  — ", std::nullopt, MemoryPressure::unknown),
              "CPU   — , RAM unavailable, memory pressure Unavailable");
}

}  // namespace
}  // namespace zephrine
