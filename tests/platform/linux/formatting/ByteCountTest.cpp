// SPDX-License-Identifier: MIT
#include "platform/linux/formatting/ByteCount.h"

#include <gtest/gtest.h>

#include <limits>

namespace zephrine {
namespace {

constexpr std::int64_t kKB = 1024;
constexpr std::int64_t kMB = 1024 * kKB;
constexpr std::int64_t kGB = 1024 * kMB;
constexpr std::int64_t kTB = 1024 * kGB;
constexpr std::int64_t kPB = 1024 * kTB;

std::string text(std::int64_t bytes) {
    return byteCountText(bytes, {.decimal = ".", .grouping = ","});
}

TEST(ByteCount, NamesSmallCountsExactly) {
    EXPECT_EQ(text(0), "Zero KB");
    EXPECT_EQ(text(1), "1 byte");
    EXPECT_EQ(text(2), "2 bytes");
    EXPECT_EQ(text(1023), "1,023 bytes");
}

TEST(ByteCount, CountsInMultiplesOf1024) {
    EXPECT_EQ(text(kKB), "1 KB");
    EXPECT_EQ(text(kMB), "1 MB");
    EXPECT_EQ(text(kGB), "1 GB");
    EXPECT_EQ(text(kTB), "1 TB");
    EXPECT_EQ(text(kPB), "1 PB");
    EXPECT_EQ(text(1024 * kPB), "1 EB");
}

TEST(ByteCount, ShowsAsManyDecimalsAsTheUnitHas) {
    EXPECT_EQ(text(kKB + kKB / 2), "2 KB");
    EXPECT_EQ(text(kMB * 3 / 2), "1.5 MB");
    EXPECT_EQ(text(kMB * 5 / 4), "1.2 MB");
    EXPECT_EQ(text(kGB * 5 / 4), "1.25 GB");
    EXPECT_EQ(text(kTB * 5 / 4), "1.25 TB");
}

TEST(ByteCount, ShowsThreeSignificantDigitsAtMost) {
    EXPECT_EQ(text(kMB * 1234 / 100), "12.3 MB");
    EXPECT_EQ(text(kMB * 1236 / 10), "124 MB");
    EXPECT_EQ(text(kGB * 12345 / 1000), "12.3 GB");
    EXPECT_EQ(text(kGB * 123456 / 1000), "123 GB");
}

TEST(ByteCount, DropsTrailingZeros) {
    EXPECT_EQ(text(kGB * 11 / 10), "1.1 GB");
    EXPECT_EQ(text(kGB + 1), "1 GB");
    EXPECT_EQ(text(kGB * 9999 / 1000), "10 GB");
    EXPECT_EQ(text(kMB * 9996 / 100), "100 MB");
    EXPECT_EQ(text(kMB * 100), "100 MB");
}

TEST(ByteCount, GoesToTheNextUnitRatherThanRoundingTo1024) {
    EXPECT_EQ(text(1023 * kKB), "1,023 KB");
    EXPECT_EQ(text(kMB - 1), "1 MB");
    EXPECT_EQ(text(kMB - kKB / 2), "1 MB");
    EXPECT_EQ(text(kGB - 1), "1 GB");
    EXPECT_EQ(text(kTB - 1), "1 TB");
}

TEST(ByteCount, ReachesTheLargestCounts) {
    EXPECT_EQ(text(std::numeric_limits<std::int64_t>::max()), "8 EB");
    EXPECT_EQ(text(std::numeric_limits<std::int64_t>::min()), "-8 EB");
    EXPECT_EQ(text(-1), "-1 byte");
}

TEST(ByteCount, NeverShowsMoreThan1023OfAnyUnitBelowTheLast) {
    for (int power = 0; power < 60; ++power) {
        for (std::int64_t offset = -3; offset <= 3; ++offset) {
            const std::int64_t bytes = (std::int64_t{1} << power) + offset;
            if (bytes > 0) {
                EXPECT_EQ(text(bytes).find("1,024"), std::string::npos) << bytes;
            }
        }
    }
}

TEST(ByteCount, FollowsTheLocalesSigns) {
    EXPECT_EQ(byteCountText(kGB * 5 / 4, {.decimal = ",", .grouping = "."}), "1,25 GB");
    EXPECT_EQ(byteCountText(1023 * kKB, {.decimal = ",", .grouping = "."}), "1.023 KB");
    EXPECT_EQ(byteCountText(1023 * kKB, {}), "1023 KB");
}

}  // namespace
}  // namespace zephrine
