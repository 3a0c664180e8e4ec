// SPDX-License-Identifier: MIT
#include "platform/qt/statusitem/tray/TrayLayout.h"

#include <gtest/gtest.h>

namespace zephrine {
namespace {

constexpr Size wide{72, 24};

TEST(TrayLayout, CentresTheWidePictureWhereThereIsRoom) {
    EXPECT_EQ(layOutInTray({80, 30}, wide, 1),
              (TrayLayout{.isWide = true, .scale = 1, .corner = {4, 3}}));
}

TEST(TrayLayout, NeverExceedsTheDensityOfTheDesktop) {
    EXPECT_EQ(layOutInTray({300, 100}, wide, 1).scale, 1);
    EXPECT_EQ(layOutInTray({300, 100}, wide, 2).scale, 2);
}

TEST(TrayLayout, ScalesTheWidePictureDownALittle) {
    const TrayLayout layout = layOutInTray({72, 22}, wide, 1);
    EXPECT_TRUE(layout.isWide);
    EXPECT_DOUBLE_EQ(layout.scale, 22.0 / 24);
    EXPECT_EQ(layout.corner, QPoint(3, 0));
}

TEST(TrayLayout, TakesTheSquareBeforeTheTextGetsTooSmall) {
    EXPECT_EQ(layOutInTray({72, 20}, wide, 1), (TrayLayout{.side = 20, .corner = {26, 0}}));
    EXPECT_EQ(layOutInTray({24, 24}, wide, 1), (TrayLayout{.side = 24}));
    EXPECT_EQ(layOutInTray({72, 24}, wide, 2), (TrayLayout{.side = 24, .corner = {24, 0}}));
}

TEST(TrayLayout, KnowsWhichTraysAreTooLowForTheWidePicture) {
    EXPECT_TRUE(isHighEnoughForWide(21, {75, 24}, 1));
    EXPECT_FALSE(isHighEnoughForWide(20, {75, 24}, 1));
    EXPECT_FALSE(isHighEnoughForWide(26, {75, 24}, 1.25));
    EXPECT_TRUE(isHighEnoughForWide(42, {75, 24}, 2));
}

TEST(TrayLayout, StandsInTheMiddleOfATallWindow) {
    EXPECT_EQ(layOutInTray({24, 60}, wide, 1), (TrayLayout{.side = 24, .corner = {0, 18}}));
}

}  // namespace
}  // namespace zephrine
