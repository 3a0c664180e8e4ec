// SPDX-License-Identifier: MIT
#include "statusitem/SquareImage.h"

#include <gtest/gtest.h>

#include "fakes/FakeDrawing.h"

namespace zephrine {
namespace {

class SquareImageTest : public testing::Test {
protected:
    FakeTextMeasure measure;
    StatusContent content{.cpuText = " 12%",
                          .ramText = " 63%",
                          .cpuPercent = 12,
                          .ramPercent = 63,
                          .fontSize = 9,
                          .dot = Color::systemGreenColor,
                          .isDark = false};

    RecordingContext drawn(double side) {
        const Image image = squareImage(content, side, measure);
        EXPECT_EQ(image.size, (Size{side, side}));
        RecordingContext context;
        EXPECT_TRUE(image.drawingHandler(context));
        return context;
    }
};

TEST_F(SquareImageTest, ShowsTheCPUFigureOverTheRAMFigureWithoutUnits) {
    const auto context = drawn(22);
    ASSERT_EQ(context.texts.size(), 2U);
    EXPECT_EQ(context.texts[0].text, "12");
    EXPECT_EQ(context.texts[1].text, "63");
    EXPECT_GT(context.texts[0].origin.y, context.texts[1].origin.y);
}

TEST_F(SquareImageTest, ShowsGigabytesAndAbsenceAsTheLinesDo) {
    content.cpuText = "  — ";
    content.ramText = " 7.9G";
    const auto context = drawn(24);
    EXPECT_EQ(context.texts[0].text, "—");
    EXPECT_EQ(context.texts[1].text, "7.9");
}

TEST_F(SquareImageTest, KeepsEveryFigureInsideTheSquareAndClearOfTheDot) {
    for (const double side : {18.0, 22.0, 24.0, 32.0, 64.0}) {
        for (const char* text : {"  5%", "100%", "128.0G", "  — "}) {
            content.cpuText = text;
            content.ramText = text;
            const auto context = drawn(side);
            ASSERT_EQ(context.ovals.size(), 1U);
            const double dotLeft = context.ovals[0].rect.x;
            EXPECT_LE(context.ovals[0].rect.x + context.ovals[0].rect.width, side);
            const auto right = [this](const RecordingContext::Text& line) {
                return line.origin.x + measure.sizeOfText(line.text, line.font).width;
            };
            EXPECT_LE(right(context.texts[0]), side + 0.001) << text << " at " << side;
            EXPECT_LE(right(context.texts[1]), dotLeft + 0.001) << text << " at " << side;
        }
    }
}

TEST_F(SquareImageTest, GivesEachLineHalfOfTheHeightAndTheDotTheCorner) {
    const auto context = drawn(22);  // gaps of one point, lines of 9.5
    const double size = 9.5 / 0.73;
    const double overhang = (9.5 - size * 1.2) / 2;  // of a line's box over its digits
    EXPECT_EQ(context.texts[0].font,
              (Font{FontFamily::monospacedDigit, size, FontWeight::semibold}));
    EXPECT_EQ(context.texts[0].origin, (Point{1, 11.5 + overhang}));
    EXPECT_EQ(context.texts[1].font, context.texts[0].font);
    EXPECT_EQ(context.texts[1].origin, (Point{1, 1 + overhang}));
    EXPECT_EQ(context.ovals[0].rect, (Rect{18, 1, 4, 4}));
}

TEST_F(SquareImageTest, OneDigitIsAsLargeAsTwo) {
    content.cpuText = "  5%";
    const Font one = drawn(22).texts[0].font;
    content.cpuText = " 55%";
    EXPECT_EQ(drawn(22).texts[0].font, one);
}

TEST_F(SquareImageTest, ShowsTwoBarsWhereDigitsWouldBeTooSmall) {
    const auto context = drawn(16);
    EXPECT_TRUE(context.texts.empty());
    ASSERT_EQ(context.rects.size(), 4U);
    const Rect cpuTrack = context.rects[0].rect;
    const Rect cpuBar = context.rects[1].rect;
    EXPECT_EQ(cpuTrack, (Rect{1, 1, 4, 14}));
    EXPECT_EQ(context.rects[2].rect, (Rect{6, 1, 4, 14}));
    EXPECT_EQ(context.ovals[0].rect, (Rect{11, 1, 5, 5}));
    EXPECT_EQ(drawn(8).rects[2].rect, (Rect{3, 0.5, 2, 7}));
    EXPECT_DOUBLE_EQ(cpuBar.height, cpuTrack.height * 0.12);
    EXPECT_EQ(context.rects[1].color, Color::black);
    EXPECT_DOUBLE_EQ(context.rects[3].rect.height, context.rects[2].rect.height * 0.63);
    EXPECT_EQ(context.ovals[0].color, Color::systemGreenColor);
}

TEST_F(SquareImageTest, AnAbsentReadingHasATrackButNoBar) {
    content.cpuPercent = std::nullopt;
    content.ramPercent = std::nullopt;
    EXPECT_EQ(drawn(16).rects.size(), 2U);
}

TEST_F(SquareImageTest, FollowsTheAppearanceOfTheBar) {
    content.isDark = true;
    EXPECT_EQ(drawn(22).texts[0].color, Color::white);
    EXPECT_EQ(drawn(16).rects[1].color, Color::white);
}

}  // namespace
}  // namespace zephrine
