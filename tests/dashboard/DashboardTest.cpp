// SPDX-License-Identifier: MIT
#include "dashboard/Dashboard.h"

#include <gtest/gtest.h>

#include <csignal>

#include "app/ControllerTest.h"
#include "dashboard/DashboardTable.h"
#include "platform/qt/DesktopVocabulary.h"

namespace zephrine {
namespace {

class DashboardTest : public testing::Test {
protected:
    FakePlatform platform;
    Dashboard dashboard{platform.application, platform.texts};

    std::vector<FakeView*>& children() { return fake<FakeView>(dashboard.view()).children; }
    /// The `index`th control of this kind, in the order of adding.
    template <typename Fake>
    Fake& child(std::size_t index = 0) {
        for (FakeView* view : children()) {
            if (auto* found = dynamic_cast<Fake*>(view); found != nullptr && index-- == 0) {
                return *found;
            }
        }
        throw std::out_of_range("no such control");
    }
};

TEST_F(DashboardTest, HoldsItsElementsInOrderWithTheirFramesFontsColorsAndTexts) {
    dashboard.loadView();
    EXPECT_EQ(dashboard.view().frame(), (Rect{0, 0, 360, 660}));
    const auto table = dashboardTable();
    ASSERT_EQ(children().size(), table.size());
    for (std::size_t i = 0; i < table.size(); ++i) {
        SCOPED_TRACE("element " + std::to_string(i + 1) + " " + table[i].text);
        EXPECT_EQ(children()[i]->kind, table[i].kind);
        EXPECT_EQ(children()[i]->rect, table[i].frame);
        if (const auto* label = dynamic_cast<FakeLabel*>(children()[i])) {
            EXPECT_EQ(label->text, table[i].text);
            EXPECT_EQ(label->font, table[i].font);
            EXPECT_EQ(label->color, table[i].color);
            EXPECT_EQ(label->alignment, table[i].alignment);
            EXPECT_EQ(label->lineBreakMode, table[i].lineBreakMode);
        }
        if (const auto* button = dynamic_cast<FakeButton*>(children()[i])) {
            EXPECT_EQ(button->title, table[i].text);
        }
    }
}

TEST_F(DashboardTest, CallsTheMachineWhatItsSystemDoes) {
    platform.application.words = desktopVocabulary;
    dashboard.loadView();
    EXPECT_EQ(child<FakeLabel>(1).text, "Your computer, at a glance.");
}

TEST_F(DashboardTest, ItsFieldsAreTheLabelsOnScreen) {
    dashboard.loadView();
    const auto isChild = [this](const auto& field, std::size_t row) {
        return dynamic_cast<FakeView*>(field.get()) == children().at(row - 1);
    };
    EXPECT_TRUE(isChild(dashboard.cpu, 5));
    EXPECT_TRUE(isChild(dashboard.ram, 7));
    EXPECT_TRUE(isChild(dashboard.gpu, 9));
    EXPECT_TRUE(isChild(dashboard.ramDetail, 11));
    EXPECT_TRUE(isChild(dashboard.gpuDetail, 12));
    EXPECT_TRUE(isChild(dashboard.pressure, 13));
    EXPECT_TRUE(isChild(dashboard.processSort, 20));
    EXPECT_TRUE(isChild(dashboard.cadence, 35));
    ASSERT_EQ(dashboard.processNames.size(), 5U);
    ASSERT_EQ(dashboard.processValues.size(), 5U);
    for (std::size_t row = 0; row < 5; ++row) {
        EXPECT_TRUE(isChild(dashboard.processNames[row], 21 + 2 * row));
        EXPECT_TRUE(isChild(dashboard.processValues[row], 22 + 2 * row));
    }
}

TEST_F(DashboardTest, ShowsTheImageCalledAppIcon) {
    dashboard.loadView();
    EXPECT_EQ(child<FakeImageView>().imageName, "AppIcon");
    EXPECT_FALSE(child<FakeImageView>().showsApplicationIcon);
}

TEST_F(DashboardTest, ShowsTheApplicationsOwnIconWithoutThatImage) {
    platform.application.widgetFactory.imagesExist = false;
    dashboard.loadView();
    EXPECT_TRUE(child<FakeImageView>().showsApplicationIcon);
}

TEST_F(DashboardTest, SpeaksTheNamesOfTheGraphAndTheSortControl) {
    dashboard.loadView();
    EXPECT_EQ(child<FakeCanvas>().accessibilityLabel,
              "CPU, memory and GPU usage history for the last five minutes");
    EXPECT_EQ(child<FakeSegmentedControl>().accessibilityLabel, "Sort top processes");
}

TEST_F(DashboardTest, SortsByCPUAtFirst) {
    dashboard.loadView();
    const auto& sort = child<FakeSegmentedControl>();
    EXPECT_EQ(sort.labels, (std::vector<std::string>{"CPU", "RAM"}));
    EXPECT_EQ(sort.selected, 0);
}

using DashboardDeathTest = DashboardTest;

TEST_F(DashboardDeathTest, CannotBeBuiltWithoutItsSortControl) {
    platform.application.widgetFactory.givesSegments = false;
    EXPECT_EXIT(dashboard.loadView(), testing::KilledBySignal(SIGABRT), "^$");
}

TEST_F(DashboardTest, QuitTerminatesTheApplication) {
    dashboard.loadView();
    child<FakeButton>(1).press();
    EXPECT_EQ(platform.application.terminations, 1);
}

TEST_F(DashboardTest, SettingsDoesNothingOnceTheControllerIsGone) {
    dashboard.loadView();
    child<FakeButton>(0).press();
    EXPECT_TRUE(platform.application.windowFactory.windows.empty());
}

TEST_F(DashboardTest, CanBeUpdatedBeforeItsViewIsBuilt) {
    dashboard.update(42, {}, {}, MemoryPressure::normal, {}, 1);
    dashboard.loadView();
    EXPECT_EQ(dashboard.cpu->stringValue(), "42%");
}

}  // namespace
}  // namespace zephrine
