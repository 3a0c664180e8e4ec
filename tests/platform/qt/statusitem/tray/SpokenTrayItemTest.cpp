// SPDX-License-Identifier: MIT
// The item in a tray over the interface that Qt's bridge to assistive technology uses.
#include "platform/qt/statusitem/tray/SpokenTrayItem.h"

#include <gtest/gtest.h>

#include <QAccessibleActionInterface>
#include <QGuiApplication>
#include <algorithm>

namespace zephrine {
namespace {

class SpokenTrayItemTest : public testing::Test {
protected:
    void TearDown() override { QAccessible::setActive(false); }

    static QAccessibleInterface& application() {
        return *QAccessible::queryAccessibleInterface(qGuiApp);
    }
    /// Null while there is none.
    static QAccessibleInterface* button() {
        for (int index = 0; index < application().childCount(); ++index) {
            if (application().child(index)->role() == QAccessible::Button) {
                return application().child(index);
            }
        }
        return nullptr;
    }
    static bool isAmongWindows() {
        const auto windows = QGuiApplication::topLevelWindows();
        return std::any_of(windows.begin(), windows.end(), [](const QWindow* window) {
            return window->accessibleRoot() != nullptr &&
                   window->accessibleRoot()->role() == QAccessible::Button;
        });
    }

    std::optional<QRect> place = QRect(900, 2, 87, 24);
    int presses = 0;
    SpokenTrayItem item{{.place = [this] { return place; }, .press = [this] { ++presses; }}};
};

TEST_F(SpokenTrayItemTest, IsNotMadeWhileNobodyListens) {
    item.setShown(true);
    EXPECT_FALSE(isAmongWindows());
    QAccessible::setActive(true);
    EXPECT_TRUE(isAmongWindows());
    QAccessible::setActive(false);
    EXPECT_FALSE(isAmongWindows());
}

TEST_F(SpokenTrayItemTest, IsThereWhileTheItemIsInATray) {
    QAccessible::setActive(true);
    EXPECT_EQ(button(), nullptr);
    item.setShown(true);
    ASSERT_NE(button(), nullptr);
    EXPECT_EQ(application().indexOfChild(button()), application().childCount() - 1);
    EXPECT_EQ(button()->parent(), &application());
    item.setShown(false);
    EXPECT_EQ(button(), nullptr);
}

TEST_F(SpokenTrayItemTest, HasTheLabelForItsNameAndStandsWhereTheTrayIs) {
    QAccessible::setActive(true);
    item.setName("CPU   5%");
    item.setShown(true);
    ASSERT_NE(button(), nullptr);
    EXPECT_EQ(button()->text(QAccessible::Name), "CPU   5%");
    EXPECT_EQ(button()->text(QAccessible::Description), "Zephrine");
    EXPECT_EQ(button()->rect(), QRect(900, 2, 87, 24));
    EXPECT_FALSE(button()->state().invisible);
    item.setName("CPU   6%");
    EXPECT_EQ(button()->text(QAccessible::Name), "CPU   6%");
    place = std::nullopt;
    EXPECT_TRUE(button()->rect().isNull());
}

TEST_F(SpokenTrayItemTest, CanBePressed) {
    QAccessible::setActive(true);
    item.setShown(true);
    ASSERT_NE(button(), nullptr);
    QAccessibleActionInterface* const actions = button()->actionInterface();
    ASSERT_NE(actions, nullptr);
    EXPECT_EQ(actions->actionNames(), QStringList{QAccessibleActionInterface::pressAction()});
    actions->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_EQ(presses, 1);
    actions->doAction("another");
    EXPECT_EQ(presses, 1);
}

TEST_F(SpokenTrayItemTest, GoesWithTheItem) {
    auto shortLived = std::make_unique<SpokenTrayItem>(
        SpokenTrayItem::Item{.place = [] { return QRect(); }, .press = [] {}});
    shortLived->setShown(true);
    QAccessible::setActive(true);
    EXPECT_TRUE(isAmongWindows());
    shortLived.reset();
    EXPECT_FALSE(isAmongWindows());
    QAccessible::setActive(false);  // nobody is told of it any more
    EXPECT_FALSE(isAmongWindows());
}

}  // namespace
}  // namespace zephrine
