// SPDX-License-Identifier: MIT
#include "text/SingleLine.h"

#include <gtest/gtest.h>

namespace zephrine {
namespace {

TEST(SingleLine, PutsEverythingOnOneLine) {
    EXPECT_EQ(singleLine("a\nb\tc\u2028d\u2029e\u0085f"), "a b c d e f");
    EXPECT_EQ(singleLine(std::string_view("\0\x1F\x7F\u0080\u009F", 7)), "     ");
}

TEST(SingleLine, KeepsTheOrderInWhichATextIsWritten) {
    EXPECT_EQ(singleLine("gpj\u202Eexe\u2066 \u00B7 PID 12"), "gpj\uFFFDexe\uFFFD \u00B7 PID 12");
    EXPECT_EQ(singleLine("\u202A\u202B\u202C\u202D|\u2067\u2068\u2069"),
              "\uFFFD\uFFFD\uFFFD\uFFFD|\uFFFD\uFFFD\uFFFD");
    const std::string hebrew = "\u05E9\u05DC\u05D5\u05DD";
    EXPECT_EQ(singleLine(hebrew), hebrew) << "which runs from right to left by itself";
}

TEST(SingleLine, LeavesEveryOtherCharacterAlone) {
    const std::string text = " ~\u00A0\u00B7\u2014\u2027\u202F\u2065\u206A\u20AC\U0001F600<b>&";
    EXPECT_EQ(singleLine(text), text);
    EXPECT_EQ(singleLine(""), "");
}

TEST(SingleLine, LeavesBytesThatAreNoUTF8AsTheyAre) {
    EXPECT_EQ(singleLine("a\xFF\nb\xC2"), "a\xFF b\xC2");
    EXPECT_EQ(singleLine("\xE2\x80"), "\xE2\x80");
    EXPECT_EQ(singleLine("\xE2\n\x80\xA8"), "\xE2 \x80\xA8");
}

}  // namespace
}  // namespace zephrine
