// SPDX-License-Identifier: MIT
#include "platform/linux/base/TextScan.h"

#include <gtest/gtest.h>

#include <limits>

#include "platform/linux/base/SaturatingMath.h"

namespace zephrine {
namespace {

constexpr std::uint64_t kMax = std::numeric_limits<std::uint64_t>::max();

TEST(TextScan, TakesOnlyLinesThatAreComplete) {
    std::string_view text = "one\n\ntwo";
    EXPECT_EQ(takeLine(text), "one");
    EXPECT_EQ(takeLine(text), "");
    EXPECT_EQ(takeLine(text), std::nullopt);
    EXPECT_EQ(text, "two");
}

TEST(TextScan, SeparatesWordsAtBlanksAndTabs) {
    std::string_view line = "  a\t bc  ";
    EXPECT_EQ(takeWord(line), "a");
    EXPECT_EQ(takeWord(line), "bc");
    EXPECT_EQ(takeWord(line), "");
    EXPECT_EQ(takeWord(line), "");
}

TEST(TextScan, ReadsNumbersUpToTheLastThatFits) {
    EXPECT_EQ(parseUnsigned("0"), 0U);
    EXPECT_EQ(parseUnsigned("18446744073709551615"), kMax);
    EXPECT_EQ(parseUnsigned("18446744073709551616"), std::nullopt);
}

TEST(TextScan, RefusesWhatIsNotANumber) {
    for (const char* word : {"", "-1", "+1", " 1", "1 ", "1x", "0x10", "1.5"}) {
        EXPECT_EQ(parseUnsigned(word), std::nullopt) << '"' << word << '"';
    }
}

TEST(TextScan, ReadsKilobytesThatFit) {
    EXPECT_EQ(parseKilobytes("  3 kB"), 3072U);
    EXPECT_EQ(parseKilobytes(std::to_string(kMax / 1024) + " kB"), kMax / 1024 * 1024);
    for (const auto& words : {std::to_string(kMax / 1024 + 1) + " kB", std::string("3"),
                              std::string("3 MB"), std::string("kB"), std::string()}) {
        EXPECT_EQ(parseKilobytes(words), std::nullopt) << words;
    }
}

TEST(SaturatingMath, StopsAtTheEndsOfTheRange) {
    EXPECT_EQ(saturatingSum(2, 3), 5U);
    EXPECT_EQ(saturatingSum(kMax - 1, 1), kMax);
    EXPECT_EQ(saturatingSum(kMax, kMax), kMax);
    EXPECT_EQ(saturatingDifference(5, 3), 2U);
    EXPECT_EQ(saturatingDifference(3, 5), 0U);
}

}  // namespace
}  // namespace zephrine
