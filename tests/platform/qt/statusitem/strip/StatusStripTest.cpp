// SPDX-License-Identifier: MIT
// The strip under the pointer of a test.
#include "platform/qt/statusitem/strip/StatusStrip.h"

#include <gtest/gtest.h>

#include <QAccessible>
#include <QApplication>
#include <QMouseEvent>
#include <QScreen>

#include "fakes/FakeServices.h"
#include "platform/qt/drawing/Colors.h"
#include "platform/qt/statusitem/SampleImage.h"
#include "platform/qt/statusitem/bus/PrivateBus.h"

namespace zephrine {
namespace {

class Strip : public testing::Test {
protected:
    FakePreferenceStore preferences;
    StatusStrip strip{preferences};
    int clicks = 0;

    void SetUp() override {
        QObject::connect(&strip, &QPushButton::clicked, &strip, [this] { ++clicks; });
        prepare(strip);
    }
    static void prepare(StatusStrip& shown) {
        shown.setPlaceName("Item");
        shown.setLength(80);
        shown.setPicture(sampleImage().wide, Appearance::aqua);
        shown.setShown(true);
    }
    void send(QEvent::Type type, QPoint pointer) {
        const auto button = type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton;
        const auto held = type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton;
        QMouseEvent event(type, pointer - strip.pos(), pointer, button, held, Qt::NoModifier);
        QApplication::sendEvent(&strip, &event);
    }
    void drag(QPoint from, QPoint to) {
        send(QEvent::MouseButtonPress, from);
        send(QEvent::MouseMove, to);
        send(QEvent::MouseButtonRelease, to);
    }
};

TEST_F(Strip, StandsAtTheTopRightOfTheWorkArea) {
    const QRect work = QGuiApplication::primaryScreen()->availableGeometry();
    EXPECT_EQ(strip.size(), QSize(80, 28));
    EXPECT_EQ(strip.geometry().right(), work.right() - 8);
    EXPECT_EQ(strip.geometry().top(), work.top() + 4);
}

TEST_F(Strip, TakesNoFocus) {
    EXPECT_TRUE(strip.windowFlags().testFlag(Qt::WindowDoesNotAcceptFocus));
    EXPECT_TRUE(strip.testAttribute(Qt::WA_ShowWithoutActivating));
    EXPECT_EQ(strip.focusPolicy(), Qt::NoFocus);
}

TEST_F(Strip, IsAButtonToAScreenReader) {
    QAccessibleInterface* const accessible = QAccessible::queryAccessibleInterface(&strip);
    ASSERT_NE(accessible, nullptr);
    EXPECT_EQ(accessible->role(), QAccessible::PushButton);
    strip.setAccessibleName("CPU   5%");
    EXPECT_EQ(accessible->text(QAccessible::Name), "CPU   5%");
    accessible->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_TRUE(waitUntil([&] { return clicks == 1; }));
}

TEST_F(Strip, ShowsThePictureOnABackgroundThatFitsIt) {
    const QImage light = strip.grab().toImage();
    EXPECT_EQ(light.pixelColor(60, 14), windowBackground(Appearance::aqua));
    EXPECT_EQ(light.pixelColor(20, 14), resolve(Color::systemGreenColor, Appearance::aqua));
    strip.setPicture(sampleImage().wide, Appearance::darkAqua);
    const QImage dark = strip.grab().toImage();
    EXPECT_EQ(dark.pixelColor(60, 14), windowBackground(Appearance::darkAqua));
    EXPECT_EQ(dark.pixelColor(20, 14), resolve(Color::systemGreenColor, Appearance::darkAqua));
}

TEST_F(Strip, IsClickedWhereItIsPressedAndReleased) {
    const QPoint point = strip.geometry().center();
    drag(point, point + QPoint(1, 1));
    EXPECT_EQ(clicks, 1);
}

TEST_F(Strip, IsNotClickedByADrag) {
    const QPoint before = strip.pos();
    const QPoint point = strip.geometry().center();
    drag(point, point + QPoint(-100, 50));
    EXPECT_EQ(clicks, 0);
    EXPECT_EQ(strip.pos(), before + QPoint(-100, 50));
}

TEST_F(Strip, IsFoundAgainWhereItWasLeft) {
    const QPoint point = strip.geometry().center();
    drag(point, point + QPoint(-100, 50));
    StatusStrip again(preferences);
    prepare(again);
    EXPECT_EQ(again.pos(), strip.pos());
}

TEST_F(Strip, CannotBeDraggedOffTheScreen) {
    drag(strip.geometry().center(), QPoint(-5000, 9000));
    const QRect screen = QGuiApplication::primaryScreen()->geometry();
    EXPECT_TRUE(screen.contains(strip.geometry()));
    EXPECT_EQ(strip.geometry().bottomLeft(), screen.bottomLeft());
}

TEST_F(Strip, PaintsOnlyWhatIsNew) {
    class PaintCount : public QObject {
    public:
        int paints = 0;
        bool eventFilter(QObject* /*object*/, QEvent* event) override {
            paints += event->type() == QEvent::Paint ? 1 : 0;
            return false;
        }
    } counter;
    QCoreApplication::processEvents();
    strip.installEventFilter(&counter);
    strip.setPicture(sampleImage().wide, Appearance::aqua);
    QCoreApplication::processEvents();
    EXPECT_EQ(counter.paints, 0);
    strip.setPicture(sampleImage(Color::systemRedColor).wide, Appearance::aqua);
    QCoreApplication::processEvents();
    EXPECT_EQ(counter.paints, 1);
}

TEST_F(Strip, ComesBackAfterItWasHidden) {
    const QRect before = strip.geometry();
    strip.setShown(false);
    EXPECT_FALSE(strip.isVisible());
    strip.setShown(true);
    EXPECT_TRUE(strip.isVisible());
    EXPECT_EQ(strip.geometry(), before);
}

}  // namespace
}  // namespace zephrine
