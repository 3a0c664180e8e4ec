// SPDX-License-Identifier: MIT
#include "platform/qt/drawing/PlainText.h"

#include <gtest/gtest.h>

#include <QTextDocument>

namespace zephrine {
namespace {

TEST(PlainText, ReplacesBytesThatAreNoUTF8) {
    EXPECT_EQ(fromUTF8("a\xff b"), QStringLiteral("a\uFFFD b"));
    EXPECT_EQ(fromUTF8("5 min ago · —"), QStringLiteral("5 min ago \u00B7 \u2014"));
}

TEST(PlainText, PutsEverythingOnOneLine) {
    EXPECT_EQ(singleLine(QStringLiteral("a\nb\tc\u2028d\u2029e\u0085f")), "a b c d e f");
}

TEST(PlainText, KeepsTheOrderInWhichATextIsWritten) {
    EXPECT_EQ(singleLine(QStringLiteral("gpj\u202Eexe\u2066 \u00B7 PID 12")),
              QStringLiteral("gpj\uFFFDexe\uFFFD \u00B7 PID 12"));
    const QString hebrew = QStringLiteral("\u05E9\u05DC\u05D5\u05DD");
    EXPECT_EQ(singleLine(hebrew), hebrew) << "which runs from right to left by itself";
}

TEST(PlainText, LeavesAnOrdinaryToolTipAsItIs) {
    EXPECT_EQ(shownLiterally("CPU 12% & RAM 40%"), "CPU 12% & RAM 40%");
}

TEST(PlainText, ShowsMarkupInAToolTipAsItsCharacters) {
    const QString hostile = "<img src='file:///etc/passwd'>  <b>bold</b>";
    const QString toolTip = shownLiterally(hostile);
    QTextDocument document;
    document.setHtml(toolTip);
    EXPECT_EQ(document.toPlainText(), hostile);
}

}  // namespace
}  // namespace zephrine
