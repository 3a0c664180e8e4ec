// SPDX-License-Identifier: MIT
// The settings window on real widgets has the controls of the table that its design fixes.
#include <gtest/gtest.h>

#include <QAccessibleActionInterface>
#include <QCheckBox>
#include <QComboBox>
#include <QFontMetricsF>
#include <QKeyEvent>
#include <QWheelEvent>
#include <map>

#include "platform/qt/TestApplication.h"
#include "platform/qt/drawing/Colors.h"
#include "platform/qt/drawing/Fonts.h"
#include "platform/qt/statusitem/bus/PrivateBus.h"
#include "platform/qt/widgets/QtView.h"
#include "platform/qt/widgets/ShownWidgets.h"
#include "settings/SettingsTable.h"
#include "settings/SettingsWindow.h"

namespace zephrine {
namespace {

class SettingsWidgets : public testing::Test {
protected:
    SettingsWidgets() {
        for (QObject* child : checkBox().parentWidget()->children()) {
            shown.push_back(qobject_cast<QWidget*>(child));
        }
    }

    QWidget& checkBox() { return qtView(*settings.loginButton).widget(); }
    static QComboBox& comboBox(PopUpButton& button) {
        return dynamic_cast<QComboBox&>(qtView(button).widget());
    }
    static void press(QWidget& widget, Qt::Key key) {
        for (const auto type : {QEvent::KeyPress, QEvent::KeyRelease}) {
            QKeyEvent event(type, key, Qt::NoModifier);
            QCoreApplication::sendEvent(&widget, &event);
        }
    }

    /// Away from the user, who turns it over the middle of the widget.
    static void turnWheel(QWidget& widget) {
        const QPointF middle = QRectF(widget.rect()).center();
        QWheelEvent event(middle, widget.mapToGlobal(middle), {}, {0, -120}, Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(&widget, &event);
    }

    /// Calls `check` with each label and its row of the table.
    template <typename Check>
    void forEachLabel(Check check) {
        ASSERT_EQ(shown.size(), table.size());
        for (std::size_t i = 0; i < table.size(); ++i) {
            if (auto* label = qobject_cast<QLabel*>(shown[i])) {
                SCOPED_TRACE("control " + std::to_string(i + 1) + " " + table[i].text);
                check(*label, table[i]);
            }
        }
    }

    SettingsWindow settings{testApplication()};
    const std::vector<SettingsElement> table = settingsTable("Panel text");
    std::vector<QWidget*> shown;
};

TEST_F(SettingsWidgets, StandInAWindowOfFixedSizeThatCanBeClosed) {
    const QWidget& window = *checkBox().window();
    EXPECT_EQ(window.windowTitle(), "Zephrine Settings");
    EXPECT_EQ(window.minimumSize(), QSize(400, 310));
    EXPECT_EQ(window.maximumSize(), QSize(400, 310));
    EXPECT_TRUE(window.windowFlags().testFlag(Qt::WindowTitleHint));
    EXPECT_TRUE(window.windowFlags().testFlag(Qt::WindowCloseButtonHint));
    EXPECT_FALSE(window.windowFlags().testFlag(Qt::WindowMinimizeButtonHint));
    EXPECT_FALSE(window.windowFlags().testFlag(Qt::WindowMaximizeButtonHint));
    EXPECT_EQ(checkBox().parentWidget()->size(), QSize(400, 310));
}

TEST_F(SettingsWidgets, AreReadAloudAsTheKindsOfTheTableInItsOrder) {
    const std::map<std::string, QAccessible::Role> roles{{"label", QAccessible::StaticText},
                                                         {"check box", QAccessible::CheckBox},
                                                         {"pop-up", QAccessible::ComboBox}};
    ASSERT_EQ(shown.size(), table.size());
    for (std::size_t i = 0; i < table.size(); ++i) {
        EXPECT_EQ(spokenRole(*shown[i]), roles.at(table[i].kind)) << "control " << i + 1;
        EXPECT_TRUE(shown[i]->isEnabled()) << "control " << i + 1;
    }
}

TEST_F(SettingsWidgets, StandInTheFramesOfTheTable) {
    ASSERT_EQ(shown.size(), table.size());
    for (std::size_t i = 0; i < table.size(); ++i) {
        EXPECT_EQ(shownFrame(*shown[i]), table[i].frame) << "control " << i + 1;
    }
}

TEST_F(SettingsWidgets, CarryTheTextsAndItemsOfTheTable) {
    forEachLabel([](const QLabel& label, const SettingsElement& row) {
        EXPECT_EQ(label.text().toStdString(), row.text);
    });
    for (std::size_t i = 0; i < table.size(); ++i) {
        if (const auto* box = qobject_cast<QCheckBox*>(shown[i])) {
            EXPECT_EQ(box->text().toStdString(), table[i].text);
        }
        if (const auto* popUp = qobject_cast<QComboBox*>(shown[i])) {
            ASSERT_EQ(static_cast<std::size_t>(popUp->count()), table[i].items.size());
            for (int item = 0; item < popUp->count(); ++item) {
                EXPECT_EQ(popUp->itemText(item).toStdString(),
                          table[i].items[static_cast<std::size_t>(item)]);
            }
            EXPECT_FALSE(popUp->isEditable());
        }
    }
}

TEST_F(SettingsWidgets, AreCalledByTheNamesOfTheTable) {
    ASSERT_EQ(shown.size(), table.size());
    for (std::size_t i = 0; i < table.size(); ++i) {
        const auto* const spoken = QAccessible::queryAccessibleInterface(shown[i]);
        const std::string name =
            table[i].accessibilityLabel.empty() ? table[i].text : table[i].accessibilityLabel;
        EXPECT_EQ(spoken->text(QAccessible::Name).toStdString(), name) << "control " << i + 1;
    }
}

TEST_F(SettingsWidgets, SayTheirChoiceAndOpenTheirListForAReader) {
    QComboBox& button = comboBox(*settings.fontSize);
    QAccessibleInterface& spoken = *QAccessible::queryAccessibleInterface(&button);
    settings.fontSize->selectItem(2);
    EXPECT_EQ(spoken.text(QAccessible::Value), "Large");
    EXPECT_EQ(spoken.text(QAccessible::Description), "Large");
    ASSERT_EQ(spoken.childCount(), 1);
    EXPECT_EQ(spoken.child(0)->role(), QAccessible::List);
    EXPECT_EQ(spoken.indexOfChild(spoken.child(0)), 0);
    EXPECT_FALSE(spoken.state().expanded);
    spoken.actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_TRUE(spoken.state().expanded);
    EXPECT_EQ(spoken.child(0)->childCount(), 3);
    spoken.actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_FALSE(spoken.state().expanded);
}

TEST_F(SettingsWidgets, UseTheFontsOfTheTable) {
    forEachLabel([](const QLabel& label, const SettingsElement& row) {
        EXPECT_EQ(label.font(), makeFont(row.font.value_or(Font{})));
    });
}

TEST_F(SettingsWidgets, PaintTheColorsOfTheTableInBothAppearances) {
    for (const Appearance appearance : {Appearance::darkAqua, Appearance::aqua}) {
        testApplication().appearance().setFallback({appearance});
        forEachLabel([&](QLabel& label, const SettingsElement& row) {
            EXPECT_EQ(inkColor(label).name(), resolve(row.color, appearance).name());
        });
    }
}

TEST_F(SettingsWidgets, LeaveRoomForEveryText) {
    settings.loginStatus->setStringValue("Approve Zephrine in System Settings → Login Items.");
    forEachLabel([](const QLabel& label, const SettingsElement&) {
        EXPECT_LE(QFontMetricsF(label.font()).horizontalAdvance(label.text()), label.width());
        EXPECT_LE(QFontMetricsF(label.font()).tightBoundingRect(label.text()).height(),
                  label.height());
    });
}

TEST_F(SettingsWidgets, ShowWhatTheyAreSetTo) {
    settings.loginButton->setOn(true);
    settings.fontSize->selectItem(2);
    settings.refreshInterval->selectItem(3);
    EXPECT_TRUE(dynamic_cast<QCheckBox&>(checkBox()).isChecked());
    EXPECT_EQ(comboBox(*settings.ramDisplay).currentText(), "Percentage");
    EXPECT_EQ(comboBox(*settings.fontSize).currentText(), "Large");
    EXPECT_EQ(comboBox(*settings.refreshInterval).currentText(), "5 seconds");
}

TEST_F(SettingsWidgets, TellOfChoicesMadeWithTheKeyboardOnly) {
    int ticks = 0;
    std::vector<int> chosen;
    settings.loginButton->setAction([&] { ++ticks; });
    settings.fontSize->setAction(
        [&] { chosen.push_back(settings.fontSize->indexOfSelectedItem()); });
    press(checkBox(), Qt::Key_Space);
    EXPECT_EQ(ticks, 1);
    EXPECT_TRUE(settings.loginButton->isOn());
    settings.fontSize->selectItem(1);
    EXPECT_TRUE(chosen.empty()) << "the program's own doing is no choice";
    press(comboBox(*settings.fontSize), Qt::Key_Down);
    press(comboBox(*settings.fontSize), Qt::Key_Up);
    press(comboBox(*settings.fontSize), Qt::Key_Home);
    EXPECT_EQ(chosen, (std::vector<int>{2, 1, 0}));
}

TEST_F(SettingsWidgets, TakeNoTurnOfTheWheelForAChoice) {
    for (PopUpButton* button :
         {settings.ramDisplay.get(), settings.fontSize.get(), settings.refreshInterval.get()}) {
        int choices = 0;
        button->setAction([&] { ++choices; });
        button->selectItem(0);
        turnWheel(comboBox(*button));
        EXPECT_EQ(button->indexOfSelectedItem(), 0);
        EXPECT_EQ(choices, 0);
    }
}

TEST_F(SettingsWidgets, TakeTheKeyboardByTabAndClickButNotByTheWheel) {
    for (PopUpButton* button :
         {settings.ramDisplay.get(), settings.fontSize.get(), settings.refreshInterval.get()}) {
        EXPECT_EQ(comboBox(*button).focusPolicy(), Qt::StrongFocus);
    }
}

TEST_F(SettingsWidgets, KeepTheKeyboardAtTheCheckBoxWhenArrowsArePressedThere) {
    QWidget& window = *checkBox().window();
    window.show();
    window.activateWindow();
    checkBox().setFocus();
    ASSERT_TRUE(waitUntil([&] { return checkBox().hasFocus(); }));
    for (const Qt::Key key : {Qt::Key_Left, Qt::Key_Right, Qt::Key_Up, Qt::Key_Down}) {
        press(checkBox(), key);
        EXPECT_TRUE(checkBox().hasFocus()) << key;
    }
    EXPECT_FALSE(settings.loginButton->isOn());
    window.hide();
}

}  // namespace
}  // namespace zephrine
