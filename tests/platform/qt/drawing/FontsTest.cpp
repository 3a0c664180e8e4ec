// SPDX-License-Identifier: MIT
#include "platform/qt/drawing/Fonts.h"

#include <gtest/gtest.h>

#include <QFontDatabase>
#include <QFontMetricsF>

#include "platform/qt/DesktopVocabulary.h"
#include "platform/qt/drawing/QtTextMeasure.h"

namespace zephrine {
namespace {

TEST(Fonts, HaveTheirSizeInPixels) {
    EXPECT_EQ(makeFont({FontFamily::system, 27}).pixelSize(), 27);
    EXPECT_EQ(makeFont({FontFamily::system, 9.4}).pixelSize(), 9);
    EXPECT_EQ(makeFont({FontFamily::system, 0.1}).pixelSize(), 1);
}

TEST(Fonts, HaveTheirWeight) {
    EXPECT_EQ(makeFont({FontFamily::system, 10, FontWeight::regular}).weight(), QFont::Normal);
    EXPECT_EQ(makeFont({FontFamily::system, 10, FontWeight::medium}).weight(), QFont::Medium);
    EXPECT_EQ(makeFont({FontFamily::system, 10, FontWeight::semibold}).weight(), QFont::DemiBold);
}

TEST(Fonts, ForFiguresHaveDigitsOfOneWidth) {
    for (const auto family : {FontFamily::monospacedDigit, FontFamily::monospaced}) {
        const QFontMetricsF metrics(makeFont({family, 27, FontWeight::medium}));
        for (char16_t digit = u'1'; digit <= u'9'; ++digit) {
            EXPECT_EQ(metrics.horizontalAdvance(QChar(digit)), metrics.horizontalAdvance(u'0'));
        }
    }
}

TEST(Fonts, OfFixedPitchGiveEveryCharacterOneWidth) {
    const QtTextMeasure measure;
    const Font font{FontFamily::monospaced, 9, FontWeight::medium};
    EXPECT_EQ(measure.sizeOfText("CPU 100%", font).width,
              measure.sizeOfText("iiiiiiii", font).width);
    EXPECT_GT(measure.sizeOfText("x", font).height, 8);
}

// The detail line below the GPU's figure is 105 points wide, at 9 points. These are the families
// that Debian's desktops set their windows in; those of them that are not installed are left out.
TEST(Fonts, OfEveryDesktopLeaveRoomToSayThatAFigureIsUnavailable) {
    const std::string_view text = desktopVocabulary.unavailable;
    int measured = 0;
    for (const auto* family : {"DejaVu Sans", "Noto Sans", "Cantarell", "Adwaita Sans", "Inter",
                               "Liberation Sans", "Ubuntu", "Verdana"}) {
        if (!QFontDatabase::hasFamily(family)) {
            continue;
        }
        QFont font(family);
        font.setPixelSize(9);
        EXPECT_LE(QFontMetricsF(font).horizontalAdvance(
                      QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()))),
                  105)
            << family;
        ++measured;
    }
    EXPECT_GE(measured, 3) << "DejaVu, Cantarell and Inter come with the tests' packages";
}

TEST(Fonts, PreferTheFirstFamilyWithEvenDigits) {
    const auto width = [](const QString& family, QChar digit) {
        return family == "Uneven" && digit == u'1' ? 5.0 : 6.0;
    };
    EXPECT_EQ(familyWithEvenDigits({"Even", "Other"}, width), "Even");
    EXPECT_EQ(familyWithEvenDigits({"Uneven", "Even", "Other"}, width), "Even");
    EXPECT_EQ(familyWithEvenDigits({"Uneven"}, width), "Uneven");
}

}  // namespace
}  // namespace zephrine
