// SPDX-License-Identifier: MIT
#include "platform/qt/windows/PopoverPlacement.h"

#include <gtest/gtest.h>

namespace zephrine {
namespace {

const QSize panel(362, 662);

TEST(PopoverPlacement, HangsCentredBelowAnItemInATopPanel) {
    const QRect area(0, 28, 1920, 1052);
    EXPECT_EQ(placePopover(QRect(1000, 2, 80, 24), area, panel), QPoint(1000 + 40 - 181, 28 + 6));
}

TEST(PopoverPlacement, StandsAboveAnItemInABottomPanel) {
    const QRect area(0, 0, 1920, 1040);
    EXPECT_EQ(placePopover(QRect(1000, 1044, 80, 32), area, panel), QPoint(859, 1040 - 6 - 662));
}

TEST(PopoverPlacement, StandsBesideAnItemInALeftPanel) {
    const QRect area(60, 0, 1860, 1080);
    EXPECT_EQ(placePopover(QRect(4, 400, 52, 24), area, panel), QPoint(60 + 6, 400 + 12 - 331));
}

TEST(PopoverPlacement, StandsBesideAnItemInARightPanel) {
    const QRect area(0, 0, 1860, 1080);
    EXPECT_EQ(placePopover(QRect(1864, 900, 52, 24), area, panel),
              QPoint(1860 - 6 - 362, 1080 - 6 - 662));
}

TEST(PopoverPlacement, StaysInsideTheWorkAreaAtItsCorners) {
    const QRect area(0, 28, 1920, 1052);
    EXPECT_EQ(placePopover(QRect(1890, 2, 24, 24), area, panel), QPoint(1920 - 6 - 362, 34));
    EXPECT_EQ(placePopover(QRect(0, 2, 24, 24), area, panel), QPoint(6, 34));
}

TEST(PopoverPlacement, HangsBelowAnItemInsideTheWorkArea) {
    const QRect area(0, 0, 1920, 1080);
    EXPECT_EQ(placePopover(QRect(1000, 100, 80, 30), area, panel), QPoint(859, 136));
}

TEST(PopoverPlacement, StandsAboveOrBesideWhereThereIsNoRoomBelow) {
    const QRect area(0, 0, 1920, 1080);
    EXPECT_EQ(placePopover(QRect(1000, 800, 80, 30), area, panel), QPoint(859, 800 - 6 - 662));
    EXPECT_EQ(placePopover(QRect(1000, 500, 80, 30), area, panel), QPoint(1086, 515 - 331))
        << "neither above nor below";
    EXPECT_EQ(placePopover(QRect(1700, 500, 80, 30), area, panel), QPoint(1700 - 6 - 362, 184));
}

TEST(PopoverPlacement, StaysOnItsMonitor) {
    const QRect second(1920, 0, 1280, 1024);
    EXPECT_EQ(placePopover(QRect(1925, 2, 20, 20), second, panel), QPoint(1926, 28));
    const QRect above(-1280, -1024, 1280, 1000);
    EXPECT_EQ(placePopover(QRect(-40, -20, 30, 18), above, panel), QPoint(-6 - 362, -24 - 6 - 662));
}

TEST(PopoverPlacement, StandsAtTheUpperRightWithoutAnItem) {
    EXPECT_EQ(placePopover(std::nullopt, QRect(100, 28, 1820, 1052), panel),
              QPoint(1920 - 6 - 362, 34));
}

TEST(PopoverPlacement, ShowsItsTopWhereItIsTallerThanTheWorkArea) {
    EXPECT_EQ(placePopover(QRect(900, 570, 24, 24), QRect(0, 0, 1024, 560), panel).y(), 0);
    EXPECT_EQ(placePopover(std::nullopt, QRect(0, 0, 300, 560), panel), QPoint(0, 0));
}

TEST(PopoverPlacement, MovesIntoTheWorkAreaNoFurtherThanNeeded) {
    const QRect area(0, 30, 1000, 730);
    EXPECT_EQ(moveInto(area, QPoint(200, 50), panel), QPoint(200, 50));
    EXPECT_EQ(moveInto(area, QPoint(900, 0), panel), QPoint(1000 - 6 - 362, 36));
    EXPECT_EQ(moveInto(area, QPoint(-50, 700), panel), QPoint(6, 760 - 6 - 662));
}

}  // namespace
}  // namespace zephrine
