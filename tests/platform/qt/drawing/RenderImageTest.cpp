// SPDX-License-Identifier: MIT
#include "platform/qt/drawing/RenderImage.h"

#include <gtest/gtest.h>

#include <limits>

#include "platform/qt/drawing/Colors.h"

namespace zephrine {
namespace {

bool drawNothing(DrawingContext& /*context*/) {
    return true;
}

struct Scaled {
    double scale;
    int width;
    int height;
};

struct RenderImageScaleTest : testing::TestWithParam<Scaled> {};

TEST_P(RenderImageScaleTest, CoversTheSizeInWholeDevicePixels) {
    const QImage image = renderImage({{75, 24}, drawNothing}, GetParam().scale, Appearance::aqua);
    EXPECT_EQ(image.width(), GetParam().width);
    EXPECT_EQ(image.height(), GetParam().height);
    EXPECT_EQ(image.devicePixelRatio(), GetParam().scale);
    EXPECT_EQ(image.format(), QImage::Format_ARGB32_Premultiplied);
}

INSTANTIATE_TEST_SUITE_P(Scales, RenderImageScaleTest,
                         testing::Values(Scaled{1, 75, 24}, Scaled{1.25, 94, 30},
                                         Scaled{1.5, 113, 36}, Scaled{2, 150, 48}));

TEST(RenderImage, StartsWithAClearBackground) {
    const QImage image = renderImage({{4, 4}, drawNothing}, 1, Appearance::aqua);
    EXPECT_EQ(image.pixel(0, 0), 0U);
}

TEST(RenderImage, PutsTheOriginAtTheLowerLeft) {
    const Image square{{10, 10}, [](DrawingContext& context) {
                           context.setFill(Color::black);
                           context.fillRect({0, 0, 2, 3});
                           return true;
                       }};
    const QImage image = renderImage(square, 2, Appearance::aqua);
    EXPECT_EQ(image.pixel(0, 19), 0xFF000000U);
    EXPECT_EQ(image.pixel(3, 14), 0xFF000000U);
    EXPECT_EQ(image.pixel(4, 19), 0U);
    EXPECT_EQ(image.pixel(0, 13), 0U);
}

TEST(RenderImage, DrawsSmallerThanTheSizeInPoints) {
    const Image corner{{40, 40}, [](DrawingContext& context) {
                           context.setFill(Color::black);
                           context.fillRect({30, 30, 10, 10});
                           return true;
                       }};
    const QImage image = renderImage(corner, 0.5, Appearance::aqua);
    EXPECT_EQ(image.size(), QSize(20, 20));
    EXPECT_EQ(image.pixel(15, 4), 0xFF000000U);
    EXPECT_EQ(image.pixel(14, 4), 0U);
    EXPECT_EQ(image.pixel(15, 5), 0U);
}

TEST(RenderImage, ResolvesColoursByTheAppearance) {
    const Image filled{{2, 2}, [](DrawingContext& context) {
                           context.setFill(Color::systemGreenColor);
                           context.fillRect({0, 0, 2, 2});
                           return true;
                       }};
    for (const auto appearance : {Appearance::aqua, Appearance::darkAqua}) {
        EXPECT_EQ(renderImage(filled, 1, appearance).pixel(0, 0),
                  resolve(Color::systemGreenColor, appearance).rgb());
    }
}

TEST(RenderImage, IsNullWhenTheHandlerDrewNothing) {
    EXPECT_TRUE(
        renderImage({{4, 4}, [](DrawingContext&) { return false; }}, 1, Appearance::aqua).isNull());
    EXPECT_TRUE(renderImage({{4, 4}, nullptr}, 1, Appearance::aqua).isNull());
}

TEST(RenderImage, IsNullForSizesThatNoPictureHas) {
    const double nan = std::numeric_limits<double>::quiet_NaN();
    for (const Size size : {Size{0, 5}, Size{-1, 5}, Size{nan, 5}, Size{1e12, 5}}) {
        EXPECT_TRUE(renderImage({size, drawNothing}, 1, Appearance::aqua).isNull());
    }
    EXPECT_TRUE(renderImage({{4, 4}, drawNothing}, nan, Appearance::aqua).isNull());
    EXPECT_TRUE(renderImage({{4, 4}, drawNothing}, 0, Appearance::aqua).isNull());
}

}  // namespace
}  // namespace zephrine
