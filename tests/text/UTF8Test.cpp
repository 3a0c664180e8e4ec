// SPDX-License-Identifier: MIT
#include "text/UTF8.h"

#include <gtest/gtest.h>

namespace zephrine {
namespace {

TEST(UTF8, LeavesValidTextAlone) {
    const std::string text = "a\xC3\xA4\xE2\x82\xAC\xF0\x9F\x98\x80\n\x1B<b>";
    EXPECT_EQ(repairedUTF8(text), text);
    EXPECT_EQ(repairedUTF8(""), "");
    EXPECT_EQ(repairedUTF8(std::string_view("\0z", 2)), std::string("\0z", 2));
}

TEST(UTF8, ReplacesEachStrayByte) {
    EXPECT_EQ(repairedUTF8("a\xFFz"), "a\uFFFDz");
    EXPECT_EQ(repairedUTF8("\x80\x80"), "\uFFFD\uFFFD");
}

TEST(UTF8, ReplacesATruncatedSequenceOnce) {
    EXPECT_EQ(repairedUTF8("\xE2\x82"), "\uFFFD");
    EXPECT_EQ(repairedUTF8("\xF0\x9F\x98z"), "\uFFFDz");
    EXPECT_EQ(repairedUTF8("\xC3\xC3\xA4"), "\uFFFD\u00E4");
}

TEST(UTF8, RejectsOverlongFormsSurrogatesAndValuesBeyondTheLast) {
    EXPECT_EQ(repairedUTF8("\xC0\xAF"), "\uFFFD\uFFFD");
    EXPECT_EQ(repairedUTF8("\xE0\x80\xAF"), "\uFFFD\uFFFD\uFFFD");
    EXPECT_EQ(repairedUTF8("\xED\xA0\x80"), "\uFFFD\uFFFD\uFFFD");
    EXPECT_EQ(repairedUTF8("\xF4\x90\x80\x80"), "\uFFFD\uFFFD\uFFFD\uFFFD");
    EXPECT_EQ(repairedUTF8("\xF4\x8F\xBF\xBF"), "\xF4\x8F\xBF\xBF");
    EXPECT_EQ(repairedUTF8("\xED\x9F\xBF"), "\xED\x9F\xBF");
}

}  // namespace
}  // namespace zephrine
