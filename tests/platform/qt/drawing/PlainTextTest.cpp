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
