// SPDX-License-Identifier: MIT
#include "platform/qt/windows/WorkArea.h"

#include <gtest/gtest.h>

#include <QGuiApplication>

namespace zephrine {
namespace {

const QRect left(0, 0, 1920, 1080);
const QRect right(1920, 0, 1280, 1024);
const QSize root(3200, 1080);

TEST(WorkArea, IsTheScreenWithoutPanels) {
    EXPECT_EQ(withoutStruts(left, root, {}), left);
}

TEST(WorkArea, LeavesOutAPanelOnItsOwnScreenOnly) {
    Strut top;
    top.top = 28;
    top.topStartX = 0;
    top.topEndX = 1919;
    EXPECT_EQ(withoutStruts(left, root, {top}), QRect(0, 28, 1920, 1052));
    EXPECT_EQ(withoutStruts(right, root, {top}), right);
}

TEST(WorkArea, CountsFromTheEdgeOfTheWholeRootWindow) {
    Strut bottom;  // 40 pixels at the bottom of the lower screen edge, which is 56 above the root's
    bottom.bottom = 96;
    bottom.bottomStartX = 1920;
    bottom.bottomEndX = 3199;
    EXPECT_EQ(withoutStruts(right, root, {bottom}), QRect(1920, 0, 1280, 984));
    Strut side;
    side.right = 60;
    side.rightStartY = 0;
    side.rightEndY = 1023;
    EXPECT_EQ(withoutStruts(right, root, {side}), QRect(1920, 0, 1220, 1024));
}

TEST(WorkArea, LeavesOutPanelsAtSeveralEdges) {
    Strut dock;
    dock.left = 64;
    dock.leftEndY = 1079;
    Strut top;
    top.top = 30;
    top.topEndX = 1919;
    EXPECT_EQ(withoutStruts(left, root, {dock, top}), QRect(64, 30, 1856, 1050));
}

TEST(WorkArea, DoesNotBelieveAPanelThatTakesTheScreen) {
    Strut huge;
    huge.top = 1000;
    huge.topEndX = 3199;
    Strut across;  // a dock at the left of the right screen, counted from the root's edge
    across.left = 1980;
    across.leftEndY = 1023;
    EXPECT_EQ(withoutStruts(left, root, {huge}), left);
    EXPECT_EQ(withoutStruts(left, root, {across}), left);
    EXPECT_EQ(withoutStruts(right, root, {across}), QRect(1980, 0, 1220, 1024));
}

TEST(WorkArea, FindsTheScreenForAnyPlace) {
    const QScreen* only = QGuiApplication::primaryScreen();
    EXPECT_EQ(&screenAt(only->geometry().center()), only);
    EXPECT_EQ(&screenAt({-5000, 9000}), only);
    EXPECT_EQ(workAreaOf(*only), only->availableGeometry());
}

}  // namespace
}  // namespace zephrine
