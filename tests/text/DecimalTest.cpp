// SPDX-License-Identifier: MIT
#include "text/Decimal.h"

#include <gtest/gtest.h>

#include <clocale>
#include <cmath>
#include <cstdlib>

namespace zephrine {
namespace {

TEST(Decimal, PadsToTheWidthAndRoundsToTheDecimals) {
    EXPECT_EQ(decimal(5.4, 0, 3), "  5");
    EXPECT_EQ(decimal(99.6, 0, 3), "100");
    EXPECT_EQ(decimal(7.94, 1, 4), " 7.9");
    EXPECT_EQ(decimal(128, 1, 4), "128.0");
}

TEST(Decimal, RoundsAsTheExactBinaryValueDemands) {
    EXPECT_EQ(decimal(0.5, 0), "0");
    EXPECT_EQ(decimal(1.5, 0), "2");
    EXPECT_EQ(decimal(2.5, 0), "2");
    EXPECT_EQ(decimal(0.25, 1), "0.2");
    EXPECT_EQ(decimal(99.95, 1), "100.0");
}

TEST(Decimal, KeepsItsPointWhateverTheLocale) {
    EXPECT_EQ(decimal(1234567.5, 1), "1234567.5");
}

TEST(Decimal, IsTestedInALocaleWithACommaWhereOneIsAskedFor) {
    const char* asked = std::getenv("LC_ALL");
    if (asked == nullptr || std::string(asked) != "de_DE.UTF-8") {
        GTEST_SKIP() << "this run is in another locale";
    }
    EXPECT_STREQ(std::localeconv()->decimal_point, ",");
}

TEST(Decimal, WritesWhatIsNotANumberWithoutFuss) {
    EXPECT_EQ(decimal(std::nan(""), 0, 3), "nan");
}

}  // namespace
}  // namespace zephrine
