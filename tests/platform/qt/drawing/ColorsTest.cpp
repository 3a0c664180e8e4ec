// SPDX-License-Identifier: MIT
#include "platform/qt/drawing/Colors.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "platform/qt/drawing/Palette.h"

namespace zephrine {
namespace {

/// WCAG 2.1, "relative luminance" and "contrast ratio".
double luminance(const QColor& color) {
    const auto linear = [](double channel) {
        return channel <= 0.04045 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) +
           0.0722 * linear(color.blueF());
}

double contrast(const QColor& one, const QColor& other) {
    const auto [dark, light] = std::minmax({luminance(one), luminance(other)});
    return (light + 0.05) / (dark + 0.05);
}

struct ColorsTest : testing::TestWithParam<Appearance> {};

TEST_P(ColorsTest, LetTextsBeReadOnTheWindow) {
    for (const Color color : {Color::labelColor, Color::secondaryLabelColor, Color::systemBlueColor,
                              Color::systemGreenColor, Color::systemOrangeColor,
                              Color::systemPurpleColor, Color::systemRedColor}) {
        EXPECT_GE(contrast(resolve(color, GetParam()), windowBackground(GetParam())), 4.5)
            << static_cast<int>(color);
    }
}

TEST_P(ColorsTest, LetTitlesBeReadOnControls) {
    const ControlColors colors = controlColors(GetParam());
    for (const QColor& face : {colors.face, colors.faceHover, colors.facePressed}) {
        EXPECT_GE(contrast(resolve(Color::labelColor, GetParam()), face), 4.5);
    }
    EXPECT_GE(contrast(resolve(Color::secondaryLabelColor, GetParam()), colors.track), 4.5);
    EXPECT_GE(contrast(colors.focus, windowBackground(GetParam())), 3);
}

TEST_P(ColorsTest, KeepTheGridFainterThanAnyText) {
    const double grid =
        contrast(resolve(Color::quaternaryLabelColor, GetParam()), windowBackground(GetParam()));
    EXPECT_GT(grid, 1.3);
    EXPECT_LT(grid, 3);
}

TEST_P(ColorsTest, AreOpaque) {
    for (int color = 0; color <= static_cast<int>(Color::systemRedColor); ++color) {
        EXPECT_EQ(resolve(static_cast<Color>(color), GetParam()).alpha(), 255);
    }
}

INSTANTIATE_TEST_SUITE_P(BothAppearances, ColorsTest,
                         testing::Values(Appearance::aqua, Appearance::darkAqua));

TEST(Colors, KeepBlackAndWhiteInBothAppearances) {
    for (const auto appearance : {Appearance::aqua, Appearance::darkAqua}) {
        EXPECT_EQ(resolve(Color::black, appearance), QColor(Qt::black));
        EXPECT_EQ(resolve(Color::white, appearance), QColor(Qt::white));
    }
}

}  // namespace
}  // namespace zephrine
