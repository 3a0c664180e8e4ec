// SPDX-License-Identifier: MIT
#include "platform/macos/drawing/MacDrawing.h"

#include <gtest/gtest.h>

#include <memory>

namespace zephrine {
namespace {

TEST(MacTextMeasure, FindsAllDigitsEquallyWideWhereTheRoleAsksForIt) {
    const MacTextMeasure measure;
    for (const FontFamily family : {FontFamily::monospacedDigit, FontFamily::monospaced}) {
        const Font font{family, 27, FontWeight::medium};
        const double zero = measure.sizeOfText("0", font).width;
        EXPECT_GT(zero, 0);
        for (const char* digit : {"1", "2", "3", "4", "5", "6", "7", "8", "9"}) {
            EXPECT_EQ(measure.sizeOfText(digit, font).width, zero) << digit;
        }
    }
}

TEST(MacTextMeasure, GrowsWithTheSizeOfTheFont) {
    const MacTextMeasure measure;
    const auto width = [&](double size) {
        return measure.sizeOfText("RAM  24.0G", {FontFamily::monospaced, size, FontWeight::medium})
            .width;
    };
    EXPECT_GT(width(9), width(8));
    EXPECT_GT(width(10), width(9));
}

TEST(MacImage, DrawsItselfFromACopyOfItsHandlerAndIsNoTemplate) {
    const auto drawings = std::make_shared<int>(0);
    NSImage* native = nil;
    {
        const Image image{.size = {62, 24}, .drawingHandler = [drawings](DrawingContext& context) {
                              ++*drawings;
                              context.setFill(Color::systemGreenColor);
                              context.fillOval({56, 4, 4, 4});
                              return true;
                          }};
        native = nsImage(image);
    }
    EXPECT_FALSE(native.isTemplate);
    EXPECT_EQ(native.size.width, 62);
    EXPECT_EQ(native.size.height, 24);
    EXPECT_EQ(*drawings, 0);
    EXPECT_GT(native.TIFFRepresentation.length, 0U);
    EXPECT_GT(*drawings, 0);
}

}  // namespace
}  // namespace zephrine
