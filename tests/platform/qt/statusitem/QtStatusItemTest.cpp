// SPDX-License-Identifier: MIT
// The whole item on a real bus, with a panel that counts what it is sent.
#include "platform/qt/statusitem/QtStatusItem.h"

#include <gtest/gtest.h>

#include <QDBusArgument>

#include "fakes/FakeServices.h"
#include "platform/qt/statusitem/QtStatusBar.h"
#include "platform/qt/statusitem/SampleImage.h"
#include "platform/qt/statusitem/bus/FakePanel.h"

namespace zephrine {
namespace {

using std::chrono::milliseconds;
using Manner = FakePanel::Manner;

class StatusItemOnABus : public testing::Test {
protected:
    PrivateBus bus;
    ClickGuard clickGuard;
    SystemAppearance appearance;
    FakePreferenceStore preferences;
    std::unique_ptr<QtStatusItem> item;
    int clicks = 0;

    void makeItem(milliseconds patience = std::chrono::hours(1)) {
        item = std::make_unique<QtStatusItem>(
            74, StatusItemServices{clickGuard, appearance, preferences, {}, {}}, bus.address(),
            patience);
        button().setToolTip("CPU   5%");
        button().setAccessibilityLabel("CPU   5%");
        button().setImage(sampleImage());
        button().setAction([this] { ++clicks; });
    }
    QtStatusItemButton& button() { return *item->button(); }
    bool stripIsShown() { return button().strip().isVisible(); }
    static bool hasItem(FakePanel& panel) {
        return waitUntil([&] { return !panel.registered.isEmpty(); });
    }
};

TEST_F(StatusItemOnABus, RegistersByItsUniqueName) {
    FakePanel panel(bus);
    makeItem();
    ASSERT_TRUE(hasItem(panel));
    EXPECT_TRUE(panel.registered.first().startsWith(':'));
    EXPECT_EQ(panel.registered.size(), 1);
}

TEST_F(StatusItemOnABus, HasEveryPropertyThatPanelsAskFor) {
    FakePanel panel(bus);
    makeItem();
    ASSERT_TRUE(hasItem(panel));
    EXPECT_EQ(panel.property("Category"), "SystemServices");
    EXPECT_EQ(panel.property("Id"), "zephrine");
    EXPECT_EQ(panel.property("Title"), "Zephrine");
    EXPECT_EQ(panel.property("Status"), "Active");
    EXPECT_EQ(panel.property("ItemIsMenu"), false);
    EXPECT_EQ(panel.property("IconAccessibleDesc"), "CPU   5%");
    EXPECT_EQ(panel.property("Menu").value<QDBusObjectPath>().path(), "/MenuBar");
    for (const char* name : {"IconName", "IconThemePath", "OverlayIconName", "AttentionIconName",
                             "AttentionMovieName", "AttentionAccessibleDesc"}) {
        EXPECT_EQ(panel.property(name), "") << name;
    }
    for (const char* name : {"OverlayIconPixmap", "AttentionIconPixmap"}) {
        const auto pixmaps = panel.property(name).value<QDBusArgument>();
        EXPECT_EQ(pixmaps.currentSignature(), "a(iiay)") << name;
        EXPECT_TRUE(qdbus_cast<NotifierPixmaps>(pixmaps).isEmpty()) << name;
    }
    EXPECT_EQ(panel.property("ToolTip").value<QDBusArgument>().currentSignature(), "(sa(iiay)ss)");
}

TEST_F(StatusItemOnABus, ShowsAnUnknownPanelSquaresAndAWidePicture) {
    FakePanel panel(bus);
    makeItem();
    ASSERT_TRUE(hasItem(panel));
    const auto pixmaps = qdbus_cast<NotifierPixmaps>(panel.property("IconPixmap"));
    ASSERT_EQ(pixmaps.size(), 10);
    EXPECT_EQ(pixmaps.first().width, 16);
    EXPECT_EQ(pixmaps.last().width, 136);
}

TEST_F(StatusItemOnABus, AnnouncesAChangedPictureOnce) {
    FakePanel panel(bus);
    makeItem();
    ASSERT_TRUE(hasItem(panel));
    panel.settle();
    panel.signalCounts.clear();
    button().setImage(sampleImage(Color::systemRedColor));
    panel.settle();
    EXPECT_EQ(panel.signalCounts, (QMap<QString, int>{{"NewIcon", 1}}));
}

TEST_F(StatusItemOnABus, AnnouncesAChangedTextOnce) {
    FakePanel panel(bus);
    makeItem();
    ASSERT_TRUE(hasItem(panel));
    panel.settle();
    panel.signalCounts.clear();
    button().setToolTip("CPU   6%");
    button().setAccessibilityLabel("CPU   6%");
    panel.settle();
    EXPECT_EQ(panel.signalCounts, (QMap<QString, int>{{"NewToolTip", 1}}));
    EXPECT_EQ(panel.property("IconAccessibleDesc"), "CPU   6%");
}

TEST_F(StatusItemOnABus, SendsNothingWhileNoPanelShowsIt) {
    FakePanel panel(bus);
    makeItem(milliseconds(10));
    ASSERT_TRUE(hasItem(panel));
    panel.hasHost = false;
    panel.announceHost();
    ASSERT_TRUE(waitUntil([&] { return stripIsShown(); }));
    panel.settle();
    panel.signalCounts.clear();
    button().setToolTip("CPU   6%");
    button().setImage(sampleImage(Color::systemRedColor));
    panel.settle();
    EXPECT_EQ(panel.signalCounts, (QMap<QString, int>{}));

    panel.hasHost = true;
    panel.announceHost();
    ASSERT_TRUE(waitUntil([&] { return !stripIsShown(); }));
    panel.settle();
    EXPECT_EQ(panel.signalCounts, (QMap<QString, int>{{"NewIcon", 1}, {"NewToolTip", 1}}))
        << "what it has missed";
}

TEST_F(StatusItemOnABus, SendsNothingForWhatIsAlreadySet) {
    FakePanel panel(bus);
    makeItem();
    ASSERT_TRUE(hasItem(panel));
    panel.settle();
    panel.signalCounts.clear();
    for (int i = 0; i < 5; ++i) {
        button().setToolTip("CPU   5%");
        button().setAccessibilityLabel("CPU   5%");
        button().setImage(sampleImage());
    }
    panel.settle();
    EXPECT_TRUE(panel.signalCounts.isEmpty());
}

TEST_F(StatusItemOnABus, SendsTheTipAsItsTitleAndWithoutMarkup) {
    FakePanel panel(bus);
    makeItem();
    ASSERT_TRUE(hasItem(panel));
    button().setToolTip("a & <b>b</b>");
    const auto tip = panel.property("ToolTip").value<QDBusArgument>();
    QString iconName;
    NotifierPixmaps icon;
    QString title;
    QString body;
    tip.beginStructure();
    tip >> iconName >> icon >> title >> body;
    tip.endStructure();
    EXPECT_EQ(title, "a  bb/b");
    EXPECT_EQ(body, "");
}

TEST_F(StatusItemOnABus, CallsItsActionForAClick) {
    FakePanel panel(bus);
    makeItem();
    ASSERT_TRUE(hasItem(panel));
    EXPECT_EQ(panel.callItem("Activate", {-99999, 2000000000}).type(), QDBusMessage::ReplyMessage);
    EXPECT_TRUE(waitUntil([&] { return clicks == 1; }));
    panel.callItem("ContextMenu", {0, 0});
    EXPECT_TRUE(waitUntil([&] { return clicks == 2; }));
}

TEST_F(StatusItemOnABus, TakesOtherButtonsAndTheWheelForNoClick) {
    FakePanel panel(bus);
    makeItem();
    ASSERT_TRUE(hasItem(panel));
    for (const QDBusMessage& reply : {panel.callItem("SecondaryActivate", {1, 2}),
                                      panel.callItem("Scroll", {120, "vertical"})}) {
        EXPECT_EQ(reply.type(), QDBusMessage::ReplyMessage);
    }
    panel.settle();
    EXPECT_EQ(clicks, 0);
}

TEST_F(StatusItemOnABus, IgnoresTheClickThatClosedThePopover) {
    FakePanel panel(bus);
    makeItem();
    ASSERT_TRUE(hasItem(panel));
    ClickGuard::TimePoint now{};
    clickGuard = ClickGuard([&] { return now; });
    clickGuard.noteAutomaticHide();
    panel.callItem("Activate", {1, 2});
    panel.settle();
    EXPECT_EQ(clicks, 0);
    now += std::chrono::seconds(1);
    panel.callItem("Activate", {1, 2});
    EXPECT_TRUE(waitUntil([&] { return clicks == 1; }));
}

TEST_F(StatusItemOnABus, LeavesThePanelWhenItIsDestroyed) {
    FakePanel panel(bus);
    makeItem();
    ASSERT_TRUE(hasItem(panel));
    BusPeer other(bus);
    const auto isThere = [&] {
        return other
            .call("org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus",
                  "NameHasOwner", {panel.registered.first()})
            .arguments()
            .at(0)
            .toBool();
    };
    EXPECT_TRUE(isThere());
    item.reset();
    EXPECT_TRUE(waitUntil([&] { return !isThere(); }));
}

TEST_F(StatusItemOnABus, IsInTheStripAtOnceWhenNoPanelIsThere) {
    makeItem();
    EXPECT_TRUE(waitUntil([&] { return stripIsShown(); }));
    EXPECT_EQ(button().anchorRect(), button().strip().geometry());
}

TEST_F(StatusItemOnABus, IsInTheStripAtOnceWhenThereIsNoBus) {
    bus.stop();
    makeItem();
    EXPECT_TRUE(stripIsShown());
}

TEST_F(StatusItemOnABus, IsNotInTheStripWhileAPanelShowsIt) {
    FakePanel panel(bus);
    makeItem();
    ASSERT_TRUE(hasItem(panel));
    panel.settle();
    EXPECT_FALSE(stripIsShown());
    EXPECT_EQ(button().anchorRect(), std::nullopt);
}

TEST_F(StatusItemOnABus, MovesFromTheStripToAPanelThatComesLate) {
    makeItem();
    ASSERT_TRUE(waitUntil([&] { return stripIsShown(); }));
    FakePanel panel(bus);
    EXPECT_TRUE(waitUntil([&] { return !stripIsShown(); }));
    EXPECT_EQ(panel.registered.size(), 1);
}

TEST_F(StatusItemOnABus, SurvivesThePanelsEndAndReturn) {
    auto panel = std::make_unique<FakePanel>(bus);
    makeItem(milliseconds(10));
    ASSERT_TRUE(hasItem(*panel));
    ASSERT_TRUE(waitUntil([&] { return !stripIsShown(); }));
    panel.reset();
    EXPECT_TRUE(waitUntil([&] { return stripIsShown(); }));
    FakePanel next(bus);
    ASSERT_TRUE(hasItem(next));
    EXPECT_TRUE(waitUntil([&] { return !stripIsShown(); }));
    EXPECT_EQ(next.property("Id"), "zephrine");
}

TEST_F(StatusItemOnABus, IsInTheStripWhenTheWatcherHasNoPanelYet) {
    FakePanel panel(bus);
    panel.hasHost = false;
    makeItem(milliseconds(10));
    EXPECT_TRUE(waitUntil([&] { return stripIsShown(); }));
    panel.hasHost = true;
    panel.announceHost();
    EXPECT_TRUE(waitUntil([&] { return !stripIsShown(); }));
}

TEST_F(StatusItemOnABus, IsInTheStripWhenTheWatcherRefusesIt) {
    const FakePanel panel(bus, Manner::refusing);
    makeItem(milliseconds(10));
    EXPECT_TRUE(waitUntil([&] { return stripIsShown(); }));
}

TEST_F(StatusItemOnABus, IsInTheStripWhenTheWatcherNeverAnswers) {
    const FakePanel panel(bus, Manner::silent);
    makeItem(milliseconds(10));
    EXPECT_TRUE(waitUntil([&] { return stripIsShown(); }));
}

TEST_F(StatusItemOnABus, SurvivesTheEndOfTheBus) {
    auto panel = std::make_unique<FakePanel>(bus);
    makeItem(milliseconds(10));
    ASSERT_TRUE(hasItem(*panel));
    ASSERT_TRUE(waitUntil([&] { return !stripIsShown(); }));
    bus.stop();
    EXPECT_TRUE(waitUntil([&] { return stripIsShown(); }));
    button().setToolTip("CPU  50%");
    button().setImage(sampleImage(Color::systemRedColor));
    EXPECT_TRUE(stripIsShown());
}

TEST_F(StatusItemOnABus, LooksAsTheSystemDoesWhereNoPanelCanBeSeen) {
    FakePanel panel(bus);
    makeItem();
    ASSERT_TRUE(hasItem(panel));
    EXPECT_EQ(button().effectiveAppearance(), Appearance::aqua);
    appearance.setFallback({Appearance::darkAqua});
    EXPECT_EQ(button().effectiveAppearance(), Appearance::darkAqua);
}

TEST_F(StatusItemOnABus, GivesTwoItemsAPlaceEach) {
    FakePanel panel(bus);
    QtStatusBar bar({clickGuard, appearance, preferences, {}, {}}, bus.address());
    const auto first = bar.statusItemWithLength(74);
    const auto second = bar.statusItemWithLength(74);
    EXPECT_TRUE(waitUntil([&] { return panel.registered.size() == 2; }));
    EXPECT_NE(panel.registered.value(0), panel.registered.value(1));
}

}  // namespace
}  // namespace zephrine
