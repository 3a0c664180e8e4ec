// SPDX-License-Identifier: MIT
#include "platform/qt/windows/QtWindow.h"

#include <gtest/gtest.h>

#include <QScreen>

#include "platform/qt/TestApplication.h"
#include "platform/qt/widgets/QtView.h"

namespace zephrine {
namespace {

struct QtWindowTest : testing::Test {
    QtView content;
    QtWindow window{"Zephrine <b>Settings</b>", {400, 310}};

    QtWindowTest() {
        content.setFrame({0, 0, 400, 310});
        window.setContentView(content);
    }
    QWidget& surface() { return *content.widget().window(); }
};

TEST_F(QtWindowTest, HasATitleAndAFixedSize) {
    EXPECT_EQ(surface().windowTitle(), "Zephrine <b>Settings</b>");
    EXPECT_EQ(surface().minimumSize(), QSize(400, 310));
    EXPECT_EQ(surface().maximumSize(), QSize(400, 310));
}

TEST_F(QtWindowTest, CanBeClosedButNotMinimised) {
    const Qt::WindowFlags flags = surface().windowFlags();
    EXPECT_TRUE(flags.testFlag(Qt::WindowCloseButtonHint));
    EXPECT_FALSE(flags.testFlag(Qt::WindowMinimizeButtonHint));
    EXPECT_FALSE(flags.testFlag(Qt::WindowMaximizeButtonHint));
}

TEST_F(QtWindowTest, IsOnlyHiddenByClosing) {
    EXPECT_FALSE(window.isVisible());
    window.makeKeyAndOrderFront();
    EXPECT_TRUE(window.isVisible());
    surface().close();
    EXPECT_FALSE(window.isVisible());
    window.makeKeyAndOrderFront();
    EXPECT_TRUE(window.isVisible());
    EXPECT_TRUE(content.widget().isVisible());
}

TEST_F(QtWindowTest, StandsInTheMiddleOfItsScreen) {
    window.center();
    window.makeKeyAndOrderFront();
    const QRect area = surface().screen()->availableGeometry();
    EXPECT_EQ(surface().pos(), QPoint((area.width() - 400) / 2, (area.height() - 310) / 2));
}

TEST_F(QtWindowTest, KeepsThePlaceThatItWasMovedTo) {
    window.center();
    window.makeKeyAndOrderFront();
    surface().move(7, 9);
    surface().close();
    window.makeKeyAndOrderFront();
    EXPECT_EQ(surface().pos(), QPoint(7, 9));
}

}  // namespace
}  // namespace zephrine
