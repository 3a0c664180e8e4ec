// SPDX-License-Identifier: MIT
#include "platform/qt/windows/QtPopover.h"

#include <gtest/gtest.h>

#include <QKeyEvent>
#include <QMouseEvent>

#include "fakes/FakeRunLoop.h"
#include "fakes/FakeStatusBar.h"
#include "platform/qt/TestApplication.h"
#include "platform/qt/statusitem/ItemAnchor.h"
#include "platform/qt/widgets/QtView.h"
#include "platform/qt/windows/QtWindow.h"

namespace zephrine {
namespace {

struct AnchoredButton final : ItemAnchor, FakeStatusItemButton {
    std::optional<QRect> place;
    [[nodiscard]] std::optional<QRect> anchorRect() const override { return place; }
};

struct QtPopoverTest : testing::Test {
    FakeRunLoop loop;
    ClickGuard guard;
    QtView content;
    QtPopover popover{testApplication().appearance(), loop, guard};
    AnchoredButton button;
    int closed = 0;
    bool shownWhenClosed = true;

    QtPopoverTest() {
        content.setFrame({0, 0, 360, 500});
        popover.setContentView(content);
        popover.setContentSize({360, 500});
        popover.setDidCloseHandler([this] {
            ++closed;
            shownWhenClosed = popover.isShown();
        });
    }
    QWidget& window() { return *content.widget().window(); }
    void press(QPoint place) {
        QMouseEvent event(QEvent::MouseButtonPress, place, window().mapToGlobal(place),
                          Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(&window(), &event);
    }
};

TEST_F(QtPopoverTest, ShowsItsContentAtFullSizeInsideAnEdge) {
    popover.showRelativeTo(button);
    EXPECT_TRUE(popover.isShown());
    EXPECT_EQ(window().size(), QSize(362, 502));
    EXPECT_EQ(content.widget().mapTo(&window(), QPoint(0, 0)), QPoint(1, 1));
    EXPECT_TRUE(content.widget().isVisible());
}

TEST_F(QtPopoverTest, IsAFramelessToolAboveOtherWindows) {
    popover.showRelativeTo(button);
    EXPECT_EQ(window().windowType(), Qt::Tool);
    EXPECT_TRUE(window().windowFlags().testFlag(Qt::FramelessWindowHint));
    EXPECT_TRUE(window().windowFlags().testFlag(Qt::WindowStaysOnTopHint));
}

TEST_F(QtPopoverTest, OpensBelowTheItem) {
    button.place = QRect(300, 0, 80, 24);
    popover.showRelativeTo(button);
    EXPECT_EQ(content.widget().mapToGlobal(QPoint(0, 0)), QPoint(300 + 40 - 180, 24 + 6 + 1));
}

TEST_F(QtPopoverTest, MovesToTheItemWhenThatAppearsWhileItIsOpen) {
    popover.showRelativeTo(button);
    button.place = QRect(300, 0, 80, 24);
    Q_EMIT button.anchorChanged();
    EXPECT_EQ(content.widget().mapToGlobal(QPoint(0, 0)), QPoint(300 + 40 - 180, 24 + 6 + 1));
}

TEST_F(QtPopoverTest, StaysWhereItIsWhenTheItemGoesAway) {
    button.place = QRect(300, 0, 80, 24);
    popover.showRelativeTo(button);
    const QPoint before = window().pos();
    button.place.reset();
    Q_EMIT button.anchorChanged();
    EXPECT_EQ(window().pos(), before);
}

TEST_F(QtPopoverTest, TellsThatItHasClosedOnEveryWay) {
    popover.showRelativeTo(button);
    popover.performClose();
    EXPECT_EQ(closed, 1);
    EXPECT_FALSE(shownWhenClosed);

    popover.showRelativeTo(button);
    QKeyEvent escape(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
    QApplication::sendEvent(&window(), &escape);
    EXPECT_EQ(closed, 2);

    popover.showRelativeTo(button);
    window().close();
    EXPECT_EQ(closed, 3);

    popover.showRelativeTo(button);
    QEvent deactivate(QEvent::WindowDeactivate);
    QApplication::sendEvent(&window(), &deactivate);
    EXPECT_EQ(closed, 4);

    popover.showRelativeTo(button);
    press({-50, 10});
    EXPECT_EQ(closed, 5);
    EXPECT_FALSE(popover.isShown());
}

TEST_F(QtPopoverTest, StaysOpenForAPressInside) {
    popover.showRelativeTo(button);
    press({100, 100});
    EXPECT_TRUE(popover.isShown());
    EXPECT_EQ(closed, 0);
}

TEST_F(QtPopoverTest, DoesNothingWhenItIsClosedTwice) {
    popover.performClose();
    EXPECT_EQ(closed, 0);
    popover.showRelativeTo(button);
    popover.performClose();
    popover.performClose();
    EXPECT_EQ(closed, 1);
}

TEST_F(QtPopoverTest, SwallowsTheClickOfAPressOutsideAndNoOther) {
    popover.showRelativeTo(button);
    popover.performClose();
    EXPECT_FALSE(guard.swallowsClick());
    popover.showRelativeTo(button);
    press({-50, 10});
    EXPECT_TRUE(guard.swallowsClick());
}

TEST_F(QtPopoverTest, ANewClickOpensItAtOnceAfterItWasClosedOnRequest) {
    popover.showRelativeTo(button);
    QApplication::processEvents();  // its activation, which hiding takes away
    ASSERT_TRUE(window().isActiveWindow());
    popover.performClose();
    EXPECT_FALSE(guard.swallowsClick());
    EXPECT_EQ(closed, 1);
}

TEST_F(QtPopoverTest, HoldsTheMouseOnlyWhileItIsShown) {
    EXPECT_TRUE(loop.timers.empty());
    popover.showRelativeTo(button);
    ASSERT_EQ(loop.timers.size(), 1U);
    EXPECT_EQ(loop.timers.front().tolerance, loop.timers.front().interval);
    loop.fire(1);
    popover.performClose();
    EXPECT_TRUE(loop.timers.empty());
}

TEST_F(QtPopoverTest, BorrowsItsContentFromAWindowWhileItIsShown) {
    QtWindow inspection("Dashboard", {360, 500});
    inspection.setContentView(content);
    inspection.makeKeyAndOrderFront();
    QWidget* const other = &window();
    popover.showRelativeTo(button);
    EXPECT_NE(&window(), other);
    EXPECT_TRUE(content.widget().isVisible());
    popover.performClose();
    EXPECT_EQ(&window(), other);
    EXPECT_TRUE(content.widget().isVisible());
}

TEST_F(QtPopoverTest, GivesItsContentToAWindowAndTakesItBack) {
    popover.showRelativeTo(button);
    {
        QtWindow inspection("Dashboard", {360, 500});
        inspection.setContentView(content);
        inspection.makeKeyAndOrderFront();
        EXPECT_EQ(content.widget().mapTo(&window(), QPoint(0, 0)), QPoint(0, 0));
        EXPECT_TRUE(content.widget().isVisible());
        popover.setContentView(content);
        EXPECT_EQ(content.widget().mapTo(&window(), QPoint(0, 0)), QPoint(1, 1));
        inspection.setContentView(content);
    }
    EXPECT_EQ(content.frame(), (Rect{0, 0, 360, 500})) << "it outlives the window that it was in";
}

}  // namespace
}  // namespace zephrine
