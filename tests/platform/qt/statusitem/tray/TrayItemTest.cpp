// SPDX-License-Identifier: MIT
// The item in trays that do what the test says, on a real X server.
#include "platform/qt/statusitem/tray/TrayItem.h"

#include <gtest/gtest.h>

#include <memory>

#include "platform/qt/drawing/Colors.h"
#include "platform/qt/statusitem/SampleImage.h"
#include "platform/qt/statusitem/bus/PrivateBus.h"
#include "platform/qt/statusitem/tray/FakeTray.h"

namespace zephrine {
namespace {

using State = TrayReport::State;

class TrayItemOnX11 : public testing::Test {
protected:
    void SetUp() override {
        if (!PrivateXServer::isInstalled()) {
            GTEST_SKIP() << "there is no Xvfb";
        }
        server = std::make_unique<PrivateXServer>();
        item = std::make_unique<TrayItem>(server->display().constData());
        item->setPicture(sampleImage());
        QObject::connect(item.get(), &TrayItem::clicked, item.get(), [this] { ++clicks; });
    }

    void startTray(const FakeTray::Traits& traits = {}) {
        tray = std::make_unique<FakeTray>(*server, traits);
    }
    bool isAsked() {
        return waitUntil([this] { return tray->wasAsked(); });
    }
    bool becomes(State state) {
        return waitUntil([this, state] { return item->report().state == state; });
    }
    void dock(std::uint16_t width = 80, std::uint16_t height = 24) {
        item->setWanted(true);
        ASSERT_TRUE(isAsked());
        tray->takeIn(width, height);
        ASSERT_TRUE(becomes(State::holding));
    }
    /// Whether the picture, green on its left half, is there.
    bool isDrawn() {
        const std::uint32_t green =
            resolve(Color::systemGreenColor, Appearance::aqua).rgb() & 0xffffff;
        return waitUntil([&] { return (tray->pixelOfItem(20, 12) & 0xffffff) == green; });
    }
    xcb_visualid_t visualWithAlpha() const {
        for (auto depth = xcb_screen_allowed_depths_iterator(&server->screen()); depth.rem > 0;
             xcb_depth_next(&depth)) {
            if (depth.data->depth == 32) {
                return xcb_depth_visuals_iterator(depth.data).data->visual_id;
            }
        }
        return XCB_NONE;
    }

    std::unique_ptr<PrivateXServer> server;
    std::unique_ptr<FakeTray> tray;
    std::unique_ptr<TrayItem> item;
    int clicks = 0;
};

TEST_F(TrayItemOnX11, AsksNobodyWhileItIsNotWanted) {
    startTray();
    EXPECT_EQ(item->report(), TrayReport());
    item->setWanted(true);
    ASSERT_TRUE(isAsked());
    EXPECT_EQ(item->report().state, State::asked);
    EXPECT_EQ(tray->asked.size(), 1U);
}

TEST_F(TrayItemOnX11, ReportsThatThereIsNoTray) {
    item->setWanted(true);
    EXPECT_EQ(item->report(), TrayReport());
}

TEST_F(TrayItemOnX11, StandsInTheTrayThatTakesItIn) {
    startTray();
    dock();
    EXPECT_EQ(item->report().releases, 0U);
    EXPECT_TRUE(isDrawn());
}

TEST_F(TrayItemOnX11, AsksATrayThatTurnsUpLater) {
    item->setWanted(true);
    startTray();
    ASSERT_TRUE(isAsked());
    EXPECT_TRUE(becomes(State::asked));
}

TEST_F(TrayItemOnX11, ReportsATrayThatEndsAndAsksTheNextOne) {
    startTray();
    dock();
    tray.reset();
    ASSERT_TRUE(becomes(State::none));
    EXPECT_EQ(item->report().releases, 0U) << "it has not let the item go, it has ended";
    startTray();
    dock();
}

TEST_F(TrayItemOnX11, CountsATrayThatLetsItGoAndAsksItOnlyWhenToldTo) {
    startTray();
    dock();
    tray->letGo();
    ASSERT_TRUE(becomes(State::none));
    EXPECT_EQ(item->report().releases, 1U);
    EXPECT_FALSE(tray->wasAsked());
    item->askAgain();
    ASSERT_TRUE(isAsked());
    tray->takeIn();
    EXPECT_TRUE(becomes(State::holding));
    EXPECT_TRUE(isDrawn());
}

TEST_F(TrayItemOnX11, CountsATrayThatDestroysIt) {
    startTray();
    dock();
    tray->destroyItem();
    ASSERT_TRUE(becomes(State::none));
    EXPECT_EQ(item->report().releases, 1U);
}

TEST_F(TrayItemOnX11, CountsATrayThatDestroysItBeforeItWasTakenIn) {
    startTray();
    item->setWanted(true);
    ASSERT_TRUE(isAsked());
    tray->destroyItem();
    ASSERT_TRUE(becomes(State::none));
    EXPECT_EQ(item->report().releases, 1U);
}

TEST_F(TrayItemOnX11, LeavesTheTrayWhenItIsWantedNoMore) {
    startTray();
    dock();
    item->setWanted(false);
    EXPECT_EQ(item->report(), TrayReport());
    EXPECT_TRUE(waitUntil([this] { return !tray->stillHasItem(); }));
}

TEST_F(TrayItemOnX11, AsksForRoomForTheWidePictureAndForItsLength) {
    startTray();
    dock();
    EXPECT_TRUE(waitUntil([this] { return tray->leastSize() == std::array{68U, 24U}; }));
    item->setLength(80);
    EXPECT_TRUE(waitUntil([this] { return tray->leastSize() == std::array{80U, 24U}; }));
}

TEST_F(TrayItemOnX11, AsksForASquareWhereWindowsStandBelowEachOther) {
    startTray({.isVertical = true});
    dock(24, 24);
    EXPECT_TRUE(waitUntil([this] { return tray->leastSize() == std::array{24U, 24U}; }));
}

TEST_F(TrayItemOnX11, FollowsATrayThatIsTurned) {
    startTray();
    dock();
    tray->setVertical(true);
    ASSERT_TRUE(isAsked());
    EXPECT_TRUE(waitUntil([this] { return tray->leastSize() == std::array{24U, 24U}; }));
    EXPECT_EQ(item->report().releases, 0U);
}

TEST_F(TrayItemOnX11, ShowsTheTraysOwnPixelsBehindThePicture) {
    startTray({.pixel = 0x204060});
    dock();
    ASSERT_TRUE(isDrawn());
    EXPECT_EQ(tray->pixelOfItem(60, 12) & 0xffffff, 0x204060U);
    EXPECT_EQ(item->surface(), Appearance::darkAqua);
}

TEST_F(TrayItemOnX11, IsTransparentWhereTheTrayAsksForThat) {
    startTray({.visual = visualWithAlpha()});
    dock();
    EXPECT_EQ(tray->depthOfItem(), 32);
    ASSERT_TRUE(isDrawn());
    EXPECT_EQ(tray->pixelOfItem(20, 12) >> 24U, 0xffU);
    EXPECT_EQ(tray->pixelOfItem(60, 12), 0U);
}

TEST_F(TrayItemOnX11, IsClickedByEveryButtonButNotByTheWheel) {
    startTray();
    dock();
    tray->press(XCB_BUTTON_INDEX_4);
    tray->press(XCB_BUTTON_INDEX_1);
    EXPECT_TRUE(waitUntil([this] { return clicks > 0; }));
    EXPECT_EQ(clicks, 1);
}

}  // namespace
}  // namespace zephrine
