// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "app/ControllerTest.h"

namespace zephrine {
namespace {

class UpdateStatusItemTest : public ControllerTest {
protected:
    /// The first line of the picture that the item now shows.
    std::string firstLine() { return drawn().texts.at(0).text; }
    std::string secondLine() { return drawn().texts.at(1).text; }
    RecordingContext drawn() {
        RecordingContext context;
        button().image.wide.drawingHandler(context);
        return context;
    }
};

TEST_F(UpdateStatusItemTest, ShowsTheReadingsInPictureToolTipAndAccessibilityLabel) {
    platform.host.setUsed(4ULL << 30U);
    launch();
    platform.host.advance(30, 70);
    controller->refresh();
    EXPECT_EQ(firstLine(), "CPU  30%");
    EXPECT_EQ(secondLine(), "RAM  25%");
    EXPECT_EQ(button().toolTip, "CPU  30%, RAM 4.0 of 16 GB, memory pressure Normal");
    EXPECT_EQ(button().accessibilityLabel, button().toolTip);
    EXPECT_EQ(controller->lastImageKey, " 30%- 25%-9.0-1-false");
}

TEST_F(UpdateStatusItemTest, ComposesThenDescribesThenSetsTheLengthAndThePicture) {
    launch();
    calls().clear();
    controller->updateStatusItem();
    EXPECT_TRUE(calls().inOrder({"boolForKey ramInGB", "effectiveAppearance",
                                 "doubleForKey fontSize", "setToolTip", "setAccessibilityLabel"}));
    controller->lastImageKey.clear();
    calls().clear();
    controller->updateStatusItem();
    EXPECT_TRUE(calls().inOrder({"setToolTip", "setAccessibilityLabel", "setLength", "setImage"}));
}

TEST_F(UpdateStatusItemTest, RemembersTheKeyBeforeItMakesThePicture) {
    launch();
    const std::string key = controller->lastImageKey;
    controller->lastImageKey.clear();
    std::string keyMeanwhile;
    application().measure.whileMeasuring = [&] { keyMeanwhile = controller->lastImageKey; };
    controller->updateStatusItem();
    EXPECT_EQ(keyMeanwhile, key);
}

TEST_F(UpdateStatusItemTest, ADifferentReadingDrawsAgain) {
    launch();
    platform.host.pressureLevel = 2;
    controller->refresh();
    EXPECT_EQ(button().imagesSet, 2);
    platform.host.advance(30, 70);
    controller->refresh();
    EXPECT_EQ(button().imagesSet, 3);
    platform.host.setUsed(4ULL << 30U);
    platform.host.advance(30, 70);
    controller->refresh();
    EXPECT_EQ(button().imagesSet, 4);
}

TEST_F(UpdateStatusItemTest, TheDotHasTheColorOfThePressure) {
    const std::vector<std::pair<int, Color>> colors{{0, Color::secondaryLabelColor},
                                                    {1, Color::systemGreenColor},
                                                    {2, Color::systemOrangeColor},
                                                    {4, Color::systemRedColor}};
    launch();
    for (const auto& [level, color] : colors) {
        platform.host.pressureLevel = level;
        controller->refresh();
        EXPECT_EQ(drawn().ovals.at(0).color, color) << level;
    }
}

TEST_F(UpdateStatusItemTest, AStoredTextSizeThatIsNotOfferedDrawsAtNinePoints) {
    platform.store.setInteger(11, "fontSize");
    launch();
    EXPECT_EQ(controller->lastImageKey, "  — -  0%-9.0-1-false");
    EXPECT_EQ(drawn().texts[0].font.size, 9);
}

TEST_F(UpdateStatusItemTest, TheGPUIsNotShown) {
    launch();
    const std::string description = button().toolTip;
    platform.gpus.addUtilization(77.0);
    application().didWake();
    EXPECT_EQ(controller->latestGPU, 77.0);
    EXPECT_EQ(button().toolTip, description);
    EXPECT_EQ(button().imagesSet, 1);
}

TEST_F(UpdateStatusItemTest, GivesTheLinesOfThePictureAsTextToo) {
    launch();
    EXPECT_EQ(button().image.text, firstLine() + "\n" + secondLine());
}

TEST_F(UpdateStatusItemTest, GivesAFormForBarsOfOneLineToo) {
    launch();
    RecordingContext context;
    button().image.line().drawingHandler(context);
    ASSERT_EQ(context.texts.size(), 2U);
    EXPECT_EQ(context.texts[0].text, firstLine());
    EXPECT_EQ(context.texts[1].text, secondLine());
}

TEST_F(UpdateStatusItemTest, SaysWhichAppearanceThePictureIsDrawnFor) {
    launch();
    EXPECT_EQ(button().image.appearance, Appearance::aqua);
    button().appearance = Appearance::darkAqua;
    controller->updateStatusItem();
    EXPECT_EQ(button().image.appearance, Appearance::darkAqua);
}

TEST_F(UpdateStatusItemTest, DrawsOnceForUnchangedReadingsButDescribesEachTime) {
    launch();
    const auto measurements = application().measure.measurements;
    controller->updateStatusItem();
    EXPECT_EQ(button().imagesSet, 1);
    EXPECT_EQ(button().toolTipsSet, 2);
    EXPECT_EQ(button().labelsSet, 2);
    EXPECT_EQ(application().measure.measurements, measurements);
}

TEST_F(UpdateStatusItemTest, FollowsTheAppearanceOfTheBar) {
    launch();
    EXPECT_EQ(drawn().texts[0].color, Color::black);
    button().appearance = Appearance::darkAqua;
    controller->updateStatusItem();
    EXPECT_EQ(button().imagesSet, 2);
    EXPECT_EQ(drawn().texts[0].color, Color::white);
    button().appearance = std::nullopt;
    controller->updateStatusItem();
    EXPECT_EQ(drawn().texts[0].color, Color::black);
}

TEST_F(UpdateStatusItemTest, TheItemIsTwelvePointsLongerThanThePicture) {
    launch();
    const double medium = application().bar.lengths.back();
    EXPECT_EQ(medium, button().image.wide.size.width + 12);
    platform.store.setInteger(10, "fontSize");
    controller->updateStatusItem();
    EXPECT_GT(application().bar.lengths.back(), medium);
    EXPECT_EQ(application().bar.lengths.back(), button().image.wide.size.width + 12);
}

TEST_F(UpdateStatusItemTest, ShowsDashesAndAGreyDotWithoutAnyReading) {
    platform.host.ticks = std::nullopt;
    platform.host.statistics = std::nullopt;
    platform.host.pressureLevel = std::nullopt;
    launch();
    EXPECT_EQ(firstLine(), "CPU   — ");
    EXPECT_EQ(secondLine(), "RAM   — ");
    EXPECT_EQ(drawn().ovals[0].color, Color::secondaryLabelColor);
    EXPECT_EQ(button().toolTip, "CPU   — , RAM unavailable, memory pressure Unavailable");
}

TEST_F(UpdateStatusItemTest, ShowsGigabytesWhenTheUserWantsThem) {
    platform.host.setUsed(4ULL << 30U);
    platform.store.setBool(true, "ramInGB");
    launch();
    EXPECT_EQ(secondLine(), "RAM  4.0G");
}

TEST_F(UpdateStatusItemTest, DoesNotAskForTheUnitWithoutAMemoryReading) {
    platform.host.statistics = std::nullopt;
    launch();
    EXPECT_FALSE(calls().has("boolForKey ramInGB"));
    platform.host.statistics = vm_statistics64{};
    controller->refresh();
    EXPECT_TRUE(calls().has("boolForKey ramInGB"));
}

TEST_F(UpdateStatusItemTest, AnItemWithoutAButtonIsLeftAlone) {
    application().bar.givesButton = false;
    launch();
    EXPECT_EQ(controller->lastImageKey, "");
    EXPECT_EQ(application().bar.lengths.size(), 1U);
    EXPECT_EQ(button().imagesSet, 0);
    EXPECT_EQ(button().toolTipsSet, 0);
}

TEST_F(UpdateStatusItemTest, TheSquareFormShowsTheSameFigures) {
    platform.host.setUsed(4ULL << 30U);
    launch();
    platform.host.advance(30, 70);
    controller->refresh();
    RecordingContext context;
    button().image.square(22).drawingHandler(context);
    EXPECT_EQ(context.texts.at(0).text, "30");
    EXPECT_EQ(context.texts.at(1).text, "25");
    button().image.square(16).drawingHandler(context);
    EXPECT_DOUBLE_EQ(context.rects.at(1).rect.height, 14 * 0.30);
    EXPECT_DOUBLE_EQ(context.rects.at(3).rect.height, 14 * 0.25);
}

}  // namespace
}  // namespace zephrine
