// SPDX-License-Identifier: MIT
#include "statusitem/StatusImage.h"

#include <gtest/gtest.h>

#include "fakes/FakeDrawing.h"

namespace zephrine {
namespace {

StatusContent content(bool isDark, double fontSize = 9) {
    return {.cpuText = " 12%",
            .ramText = " 63%",
            .cpuPercent = 12,
            .ramPercent = 63,
            .fontSize = fontSize,
            .dot = Color::systemOrangeColor,
            .isDark = isDark};
}

RecordingContext drawn(const Image& image) {
    RecordingContext context;
    EXPECT_TRUE(image.drawingHandler(context));
    return context;
}

TEST(StatusImage, IsAsWideAsTheWidestLineAndThirteenPoints) {
    // Ten characters of 0.61 x 9 points measure 54.9 points.
    const Image image = statusImage(content(false), FakeTextMeasure());
    EXPECT_EQ(image.size, (Size{55 + 13, 24}));
}

TEST(StatusImage, GrowsWithTheFontAndNotWithTheFigures) {
    const FakeTextMeasure measure;
    StatusContent longer = content(false);
    longer.ramText = "128.0G";
    EXPECT_EQ(statusImage(longer, measure).size, statusImage(content(false), measure).size);
    EXPECT_GT(statusImage(content(false, 10), measure).size.width,
              statusImage(content(false, 9), measure).size.width);
}

TEST(StatusImage, DrawsTheTwoLinesInMonospacedMedium) {
    const auto context = drawn(statusImage(content(false), FakeTextMeasure()));
    const Font font{FontFamily::monospaced, 9, FontWeight::medium};
    ASSERT_EQ(context.texts.size(), 2U);
    EXPECT_EQ(context.texts[0].text, "CPU  12%");
    EXPECT_EQ(context.texts[0].origin, (Point{1, 12}));
    EXPECT_EQ(context.texts[0].font, font);
    EXPECT_EQ(context.texts[1].text, "RAM  63%");
    EXPECT_EQ(context.texts[1].origin, (Point{1, 0}));
    EXPECT_EQ(context.texts[1].font, font);
}

TEST(StatusImage, DrawsTheDotLast) {
    EXPECT_TRUE(drawn(statusImage(content(false), FakeTextMeasure()))
                    .calls.inOrder({"drawText CPU  12%", "drawText RAM  63%", "fillOval"}));
}

TEST(StatusImage, PutsTheDotIntoTheLowerRightCorner) {
    const Image image = statusImage(content(false), FakeTextMeasure());
    const auto context = drawn(image);
    ASSERT_EQ(context.ovals.size(), 1U);
    EXPECT_EQ(context.ovals[0].rect, (Rect{image.size.width - 6, 4, 4, 4}));
    EXPECT_EQ(context.ovals[0].color, Color::systemOrangeColor);
}

TEST(StatusImage, WritesBlackOnLightBarsAndWhiteOnDarkOnes) {
    for (const auto& text : drawn(statusImage(content(false), FakeTextMeasure())).texts) {
        EXPECT_EQ(text.color, Color::black);
    }
    for (const auto& text : drawn(statusImage(content(true), FakeTextMeasure())).texts) {
        EXPECT_EQ(text.color, Color::white);
    }
}

TEST(StatusImage, DrawsFromItsOwnCopyAsOftenAsItIsAsked) {
    StatusContent changing = content(false);
    const Image image = statusImage(changing, FakeTextMeasure());
    changing.cpuText = "changed";
    drawn(image);
    EXPECT_EQ(drawn(image).texts[0].text, "CPU  12%");
}

TEST(LineImage, SetsBothLinesSideBySideWithTheDotBehind) {
    const Image image = lineImage(content(false), FakeTextMeasure());
    // Eight characters of 0.61 x 9 points measure 43.92 points.
    const double second = 1 + 44 + 9;
    EXPECT_EQ(image.size, (Size{second - 1 + 55 + 13, 12}));
    const auto context = drawn(image);
    ASSERT_EQ(context.texts.size(), 2U);
    EXPECT_EQ(context.texts[0].text, "CPU  12%");
    EXPECT_EQ(context.texts[0].origin, (Point{1, 0}));
    EXPECT_EQ(context.texts[1].text, "RAM  63%");
    EXPECT_EQ(context.texts[1].origin, (Point{second, 0}));
    ASSERT_EQ(context.ovals.size(), 1U);
    EXPECT_EQ(context.ovals[0].rect, (Rect{image.size.width - 6, 4, 4, 4}));
    EXPECT_EQ(context.ovals[0].color, Color::systemOrangeColor);
}

TEST(LineImage, HasTheFontAndColourOfTheWidePicture) {
    for (const bool isDark : {false, true}) {
        const auto wide = drawn(statusImage(content(isDark, 10), FakeTextMeasure())).texts;
        const auto line = drawn(lineImage(content(isDark, 10), FakeTextMeasure())).texts;
        for (std::size_t i = 0; i < wide.size(); ++i) {
            EXPECT_EQ(line[i].font, wide[i].font);
            EXPECT_EQ(line[i].color, wide[i].color);
        }
    }
}

}  // namespace
}  // namespace zephrine
