// SPDX-License-Identifier: MIT
// The dashboard on real widgets has the elements of the table that its design fixes.
#include <gtest/gtest.h>

#include <QPushButton>
#include <map>

#include "dashboard/Dashboard.h"
#include "dashboard/DashboardTable.h"
#include "platform/linux/formatting/LinuxFormatting.h"
#include "platform/qt/TestApplication.h"
#include "platform/qt/drawing/Colors.h"
#include "platform/qt/drawing/Fonts.h"
#include "platform/qt/widgets/QtView.h"
#include "platform/qt/widgets/ShownWidgets.h"

namespace zephrine {
namespace {

class DashboardWidgets : public testing::Test {
protected:
    void SetUp() override {
        dashboard.loadView();
        for (QObject* child : qtView(dashboard.view()).widget().children()) {
            shown.push_back(qobject_cast<QWidget*>(child));
        }
    }

    /// Calls `check` with each label and its row of the table.
    template <typename Check>
    void forEachLabel(Check check) {
        ASSERT_EQ(shown.size(), table.size());
        for (std::size_t i = 0; i < table.size(); ++i) {
            if (auto* label = qobject_cast<QLabel*>(shown[i])) {
                SCOPED_TRACE("element " + std::to_string(i + 1) + " " + table[i].text);
                check(*label, table[i]);
            }
        }
    }

    LinuxFormatting formatting;
    Dashboard dashboard{testApplication(), formatting};
    const std::vector<DashboardElement> table = dashboardTable("Your computer, at a glance.");
    std::vector<QWidget*> shown;
};

TEST_F(DashboardWidgets, AreReadAloudAsTheKindsOfTheTableInItsOrder) {
    const std::map<std::string, QAccessible::Role> roles{
        {"label", QAccessible::StaticText}, {"image", QAccessible::Graphic},
        {"canvas", QAccessible::Graphic},   {"segments", QAccessible::Grouping},
        {"button", QAccessible::Button},    {"separator", QAccessible::Separator},
    };
    ASSERT_EQ(shown.size(), table.size());
    for (std::size_t i = 0; i < table.size(); ++i) {
        EXPECT_EQ(spokenRole(*shown[i]), roles.at(table[i].kind)) << "element " << i + 1;
    }
}

TEST_F(DashboardWidgets, StandInTheFramesOfTheTable) {
    EXPECT_EQ(qtView(dashboard.view()).widget().size(), QSize(360, 660));
    ASSERT_EQ(shown.size(), table.size());
    for (std::size_t i = 0; i < table.size(); ++i) {
        EXPECT_EQ(shownFrame(*shown[i]), table[i].frame) << "element " << i + 1;
    }
}

TEST_F(DashboardWidgets, CarryTheTextsOfTheTable) {
    forEachLabel([](const QLabel& label, const DashboardElement& row) {
        EXPECT_EQ(label.text().toStdString(), row.text);
    });
    for (std::size_t i = 0; i < table.size(); ++i) {
        if (const auto* button = qobject_cast<QPushButton*>(shown[i])) {
            EXPECT_EQ(button->text().toStdString(), table[i].text);
        }
    }
}

TEST_F(DashboardWidgets, UseTheFontsOfTheTable) {
    forEachLabel([](const QLabel& label, const DashboardElement& row) {
        EXPECT_EQ(label.font().pixelSize(), static_cast<int>(row.font->size));
        EXPECT_EQ(label.font(), makeFont(*row.font));
    });
}

TEST_F(DashboardWidgets, PaintTheColorsOfTheTableInBothAppearances) {
    for (const Appearance appearance : {Appearance::darkAqua, Appearance::aqua}) {
        testApplication().appearance().setFallback({appearance});
        forEachLabel([&](QLabel& label, const DashboardElement& row) {
            EXPECT_EQ(inkColor(label).name(), resolve(row.color, appearance).name());
        });
    }
}

TEST_F(DashboardWidgets, AlignTextsAsInTheTable) {
    forEachLabel([](QLabel& label, const DashboardElement& row) {
        EXPECT_EQ(standsAtTheRight(label), row.alignment == TextAlignment::right);
    });
}

TEST_F(DashboardWidgets, CutTextsOffAsInTheTable) {
    forEachLabel([](QLabel& label, const DashboardElement& row) {
        EXPECT_EQ(endsInAnEllipsis(label), row.lineBreakMode == LineBreakMode::truncatingTail);
    });
}

TEST_F(DashboardWidgets, LeaveRoomForEveryTextThatTheyStartWith) {
    forEachLabel([](const QLabel& label, const DashboardElement&) {
        EXPECT_LE(QFontMetricsF(label.font()).horizontalAdvance(label.text()), label.width());
        EXPECT_LE(QFontMetricsF(label.font()).tightBoundingRect(label.text()).height(),
                  label.height());
    });
}

}  // namespace
}  // namespace zephrine
