// SPDX-License-Identifier: MIT
#include "platform/qt/widgets/QtWidgetFactory.h"

#include <gmock/gmock.h>

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QComboBox>
#include <QKeyEvent>
#include <QScrollBar>
#include <QWheelEvent>

#include "contract/WidgetContract.h"
#include "platform/qt/TestApplication.h"
#include "platform/qt/drawing/Colors.h"
#include "platform/qt/statusitem/bus/PrivateBus.h"
#include "platform/qt/widgets/QtView.h"

namespace zephrine {
namespace {

void pressKey(QWidget& widget, Qt::Key key) {
    QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier);
    QApplication::sendEvent(&widget, &press);
    QKeyEvent release(QEvent::KeyRelease, key, Qt::NoModifier);
    QApplication::sendEvent(&widget, &release);
}

QAbstractButton& segment(SegmentedControl& control, int index) {
    return *qtView(control).widget().findChildren<QAbstractButton*>().at(index);
}

struct QtWidgetHarness {
    WidgetFactory& factory() { return testApplication().widgets(); }
    void press(Button& button) {
        qobject_cast<QAbstractButton*>(&qtView(button).widget())->click();
    }
    void press(SegmentedControl& control, int index) { segment(control, index).click(); }
};

INSTANTIATE_TYPED_TEST_SUITE_P(Qt, WidgetContract, QtWidgetHarness);

struct QtWidgetsTest : testing::Test {
    WidgetFactory& make = testApplication().widgets();
};

TEST_F(QtWidgetsTest, CountFramesFromTheLowerLeft) {
    const auto panel = make.makeView({0, 0, 360, 660});
    const auto icon = make.makeImageView();
    icon->setFrame({20, 599, 40, 40});
    panel->addSubview(*icon);
    EXPECT_EQ(qtView(*icon).widget().geometry(), QRect(20, 21, 40, 40));
    icon->setFrame({20, 0, 40, 10});
    EXPECT_EQ(qtView(*icon).widget().geometry(), QRect(20, 650, 40, 10));
}

TEST_F(QtWidgetsTest, KeepTheirDistanceFromTheBottomWhenTheParentGrows) {
    const auto panel = make.makeView({0, 0, 100, 100});
    const auto label = make.makeLabel("text");
    label->setFrame({0, 10, 50, 20});
    panel->addSubview(*label);
    panel->setFrame({0, 0, 100, 300});
    EXPECT_EQ(qtView(*label).widget().geometry(), QRect(0, 270, 50, 20));
}

TEST_F(QtWidgetsTest, FollowTheOrderOfAddingInTheTabOrder) {
    const auto panel = make.makeView({0, 0, 100, 100});
    const auto second = make.makeButton("second");
    const auto first = make.makeButton("first");
    panel->addSubview(*first);
    panel->addSubview(*second);
    EXPECT_EQ(qtView(*first).widget().nextInFocusChain(), &qtView(*second).widget());
}

TEST_F(QtWidgetsTest, PressAButtonByKeyboard) {
    const auto button = make.makeButton("Quit");
    int presses = 0;
    button->setAction([&] { ++presses; });
    for (const Qt::Key key : {Qt::Key_Space, Qt::Key_Return, Qt::Key_Enter}) {
        pressKey(qtView(*button).widget(), key);
    }
    EXPECT_EQ(presses, 3);
}

TEST_F(QtWidgetsTest, LetAnActionDestroyItsButton) {
    auto button = make.makeButton("Close");
    button->setAction([&] { button.reset(); });
    QKeyEvent press(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
    QApplication::sendEvent(&qtView(*button).widget(), &press);
    EXPECT_EQ(button, nullptr);
}

TEST_F(QtWidgetsTest, MoveTheSelectionByArrowKeys) {
    const auto control = make.makeSegmentedControl({"CPU", "RAM"});
    control->setFrame({0, 0, 106, 24});
    control->setSelectedSegment(0);
    int calls = 0;
    control->setAction([&] { ++calls; });
    qtView(*control).widget().show();
    qtView(*control).widget().activateWindow();
    segment(*control, 0).setFocus();
    ASSERT_TRUE(waitUntil([&] { return segment(*control, 0).hasFocus(); }));
    pressKey(segment(*control, 0), Qt::Key_Right);
    EXPECT_EQ(control->selectedSegment(), 1);
    EXPECT_EQ(calls, 1);
    pressKey(segment(*control, 1), Qt::Key_Left);
    EXPECT_EQ(control->selectedSegment(), 0);
    qtView(*control).widget().hide();
}

TEST_F(QtWidgetsTest, FillTheirBarWithSegmentsOfOneWidth) {
    const auto control = make.makeSegmentedControl({"CPU", "RAM"});
    control->setFrame({0, 0, 106, 24});
    qtView(*control).widget().show();
    EXPECT_EQ(segment(*control, 0).geometry(), QRect(1, 0, 52, 24));
    EXPECT_EQ(segment(*control, 1).geometry(), QRect(53, 0, 52, 24));
    qtView(*control).widget().hide();
}

TEST_F(QtWidgetsTest, ShowAToolTipAsPlainText) {
    const auto view = make.makeView({0, 0, 10, 10});
    view->setToolTip("<b>a</b> & b");
    EXPECT_EQ(qtView(*view).widget().toolTip(),
              "<p style='white-space:pre-wrap'>&lt;b&gt;a&lt;/b&gt; &amp; b</p>");
}

TEST_F(QtWidgetsTest, ScrollTheOpenListOfAPopUpButtonByWheel) {
    const auto button = make.makePopUpButton(std::vector<std::string>(200, "item"));
    button->setFrame({0, 0, 100, 26});
    auto& comboBox = dynamic_cast<QComboBox&>(qtView(*button).widget());
    comboBox.show();
    comboBox.showPopup();
    const QScrollBar& bar = *comboBox.view()->verticalScrollBar();
    ASSERT_TRUE(waitUntil([&] { return bar.maximum() > 0; }));
    QWidget& list = *comboBox.view()->viewport();
    const QPointF middle = QRectF(list.rect()).center();
    QWheelEvent turn(middle, list.mapToGlobal(middle), {}, {0, -120}, Qt::NoButton, Qt::NoModifier,
                     Qt::NoScrollPhase, false);
    QApplication::sendEvent(&list, &turn);
    EXPECT_GT(bar.value(), 0);
    EXPECT_EQ(button->indexOfSelectedItem(), 0);
    comboBox.hidePopup();
    comboBox.hide();
}

TEST_F(QtWidgetsTest, FindNoImageThatDoesNotExist) {
    const auto image = make.makeImageView();
    EXPECT_FALSE(image->setImageNamed("no such image"));
    EXPECT_FALSE(image->setImageNamed(""));
}

TEST_F(QtWidgetsTest, DrawTheIconOfTheApplication) {
    const auto image = make.makeImageView();
    image->setFrame({0, 0, 40, 40});
    const QImage empty = qtView(*image).widget().grab().toImage();
    ASSERT_TRUE(image->setImageNamed("AppIcon"));
    EXPECT_NE(qtView(*image).widget().grab().toImage(), empty);
}

TEST_F(QtWidgetsTest, HandACanvasItsSizeAndItsColours) {
    const auto canvas = make.makeCanvas();
    canvas->setFrame({0, 0, 32, 16});
    Size seen;
    canvas->setDrawingHandler([&](DrawingContext& context, Size size) {
        seen = size;
        context.setFill(Color::systemBlueColor);
        context.fillRect({0, 0, size.width, size.height});
    });
    const QImage light = qtView(*canvas).widget().grab().toImage();
    EXPECT_EQ(seen, (Size{32, 16}));
    EXPECT_EQ(light.pixelColor(5, 5), resolve(Color::systemBlueColor, Appearance::aqua));
    testApplication().appearance().setFallback({Appearance::darkAqua});
    const QImage dark = qtView(*canvas).widget().grab().toImage();
    testApplication().appearance().setFallback({Appearance::aqua});
    EXPECT_EQ(dark.pixelColor(5, 5), resolve(Color::systemBlueColor, Appearance::darkAqua));
}

}  // namespace
}  // namespace zephrine
