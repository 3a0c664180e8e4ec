// SPDX-License-Identifier: MIT
#include "platform/linux/formatting/LinuxFormatting.h"

#include <gtest/gtest.h>

#include <clocale>
#include <cstdlib>
#include <limits>

/// The C library never frees the list that it makes of LOCPATH. Read by the leak sanitizer.
extern "C" const char* __lsan_default_suppressions() {  // NOLINT: the sanitizer's name
    return "leak:argz_add_sep\n";
}

namespace zephrine {
namespace {

/// Sets the variables that name the user's locale for one test.
class Locale {
public:
    explicit Locale(const char* name) {
        ::setenv("LC_ALL", name, 1);
        ::setenv("LOCPATH", ZEPHRINE_LOCALES, 1);
    }
    ~Locale() {
        ::unsetenv("LC_ALL");
        ::unsetenv("LOCPATH");
    }
    Locale(const Locale&) = delete;
    Locale& operator=(const Locale&) = delete;
};

TEST(LinuxFormatting, WritesIntervalsWithoutTrailingZeros) {
    const LinuxFormatting formatting(NumberSymbols{});
    EXPECT_EQ(formatting.localizedNumber(0.5), "0.5");
    EXPECT_EQ(formatting.localizedNumber(1), "1");
    EXPECT_EQ(formatting.localizedNumber(2), "2");
    EXPECT_EQ(formatting.localizedNumber(100), "100");
}

TEST(LinuxFormatting, FollowsAGermanLocale) {
    const Locale german("de_DE.UTF-8");
    const LinuxFormatting formatting;
    EXPECT_EQ(formatting.localizedNumber(0.5), "0,5");
    EXPECT_EQ(formatting.localizedNumber(1234567.125), "1.234.567,125");
    EXPECT_EQ(formatting.stringFromByteCount(1342177280), "1,25 GB");
}

TEST(LinuxFormatting, FollowsTheCLocaleAndOneThatIsNotInstalled) {
    for (const char* const name : {"C", "C.UTF-8", "xx_XX.UTF-8"}) {
        const Locale locale(name);
        EXPECT_EQ(userNumberSymbols(), NumberSymbols{}) << name;
        EXPECT_EQ(LinuxFormatting().stringFromByteCount(1342177280), "1.25 GB") << name;
    }
}

TEST(LinuxFormatting, NeitherHeedsNorChangesTheGlobalLocale) {
    const Locale german("de_DE.UTF-8");
    ASSERT_NE(std::setlocale(LC_ALL, "de_DE.UTF-8"), nullptr);
    EXPECT_EQ(LinuxFormatting(NumberSymbols{}).localizedNumber(0.5), "0.5");
    EXPECT_STREQ(std::setlocale(LC_ALL, nullptr), "de_DE.UTF-8");
    std::setlocale(LC_ALL, "C");
    EXPECT_EQ(LinuxFormatting().localizedNumber(0.5), "0,5");
    EXPECT_STREQ(std::setlocale(LC_ALL, nullptr), "C");
}

TEST(LocalizedText, GroupsThousandsOnly) {
    const NumberSymbols symbols{.decimal = ".", .grouping = "'"};
    EXPECT_EQ(localizedText(999, 3, symbols), "999");
    EXPECT_EQ(localizedText(1000, 3, symbols), "1'000");
    EXPECT_EQ(localizedText(-1000, 3, symbols), "-1'000");
    EXPECT_EQ(localizedText(-100, 3, symbols), "-100");
    EXPECT_EQ(localizedText(1234567.5, 3, symbols), "1'234'567.5");
}

TEST(LocalizedText, HasNoNegativeZeroAndNoDecimalSignAtTheEnd) {
    EXPECT_EQ(localizedText(-0.0001, 3, {}), "0");
    EXPECT_EQ(localizedText(10, 0, {}), "10");
    EXPECT_EQ(localizedText(10, 2, {}), "10");
    EXPECT_EQ(localizedText(10.10, 2, {}), "10.1");
}

TEST(LocalizedText, TakesNumbersThatAreNoneAsTheyAre) {
    EXPECT_EQ(localizedText(std::numeric_limits<double>::infinity(), 3, {}), "inf");
    EXPECT_EQ(localizedText(std::numeric_limits<double>::quiet_NaN(), 3, {}), "nan");
}

}  // namespace
}  // namespace zephrine
