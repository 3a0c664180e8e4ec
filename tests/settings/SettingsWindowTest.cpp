// SPDX-License-Identifier: MIT
#include "settings/SettingsWindow.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "app/ControllerTest.h"
#include "platform/qt/DesktopVocabulary.h"
#include "settings/SettingsTable.h"

namespace zephrine {
namespace {

class SettingsWindowTest : public ControllerTest {
protected:
    void open() {
        launch();
        controller->openSettings();
    }
    FakeWindow& window() { return *application().windowFactory.windows.back(); }
    FakePopUpButton& ramDisplay() { return popUp(controller->settingsWindow->ramDisplay); }
    FakePopUpButton& fontSize() { return popUp(controller->settingsWindow->fontSize); }
    FakePopUpButton& interval() { return popUp(controller->settingsWindow->refreshInterval); }
    FakePreferenceStore::Value stored(const char* key) { return platform.store.values.at(key); }

private:
    static FakePopUpButton& popUp(const std::unique_ptr<PopUpButton>& button) {
        return fake<FakePopUpButton>(*button);
    }
};

using SettingsWindowDeathTest = SettingsWindowTest;

TEST_F(SettingsWindowTest, HoldsItsControlsInOrderWithTheirFramesAndTexts) {
    open();
    EXPECT_EQ(window().title, "Zephrine Settings");
    EXPECT_EQ(window().size, (Size{400, 310}));
    const auto& children = fake<FakeView>(*window().content).children;
    const auto table = settingsTable();
    ASSERT_EQ(children.size(), table.size());
    for (std::size_t i = 0; i < table.size(); ++i) {
        SCOPED_TRACE("control " + std::to_string(i + 1));
        EXPECT_EQ(children[i]->kind, table[i].kind);
        EXPECT_EQ(children[i]->rect, table[i].frame);
        EXPECT_EQ(children[i]->accessibilityLabel, table[i].accessibilityLabel);
        if (const auto* label = dynamic_cast<FakeLabel*>(children[i]); label != nullptr && i != 2) {
            EXPECT_EQ(label->text, table[i].text);
        }
        if (const auto* label = dynamic_cast<FakeLabel*>(children[i])) {
            EXPECT_EQ(label->font, table[i].font);
            EXPECT_EQ(label->color, table[i].color);
            EXPECT_EQ(label->alignment, table[i].alignment);
            EXPECT_EQ(label->lineBreakMode, table[i].lineBreakMode);
        }
        if (const auto* box = dynamic_cast<FakeCheckBox*>(children[i])) {
            EXPECT_EQ(box->title, table[i].text);
        }
        if (const auto* popUp = dynamic_cast<FakePopUpButton*>(children[i])) {
            EXPECT_EQ(popUp->titles, table[i].items);
        }
    }
}

TEST_F(SettingsWindowTest, CallsTheBarWhatItsSystemDoes) {
    platform.application.words = desktopVocabulary;
    open();
    const auto& children = fake<FakeView>(*window().content).children;
    EXPECT_EQ(fake<FakeLabel>(*children[5]).text, "Panel text");
    EXPECT_EQ(children[6]->accessibilityLabel, "Panel text");
}

TEST_F(SettingsWindowTest, IsBuiltWithAnEmptyStatusLineAndOffScreen) {
    const SettingsWindow built(application());
    EXPECT_EQ(text(built.loginStatus), "");
    EXPECT_FALSE(window().visible);
}

TEST_F(SettingsWindowTest, OpensOnTheStoredChoices) {
    platform.store.setBool(true, "ramInGB");
    platform.store.setDouble(8.0, "fontSize");
    platform.store.setInteger(5, "refreshInterval");
    open();
    EXPECT_EQ(ramDisplay().selected, 1);
    EXPECT_EQ(fontSize().selected, 0);
    EXPECT_EQ(interval().selected, 3);
}

TEST_F(SettingsWindowTest, OpensOnTheDefaultsForValuesThatAreNotOffered) {
    platform.store.setDouble(9.5, "fontSize");
    platform.store.setInteger(3, "refreshInterval");
    open();
    EXPECT_EQ(ramDisplay().selected, 0);
    EXPECT_EQ(fontSize().selected, 1);
    EXPECT_EQ(interval().selected, 1);
}

TEST_F(SettingsWindowTest, TheRAMDisplayIsStoredAndShownAtOnce) {
    platform.host.setUsed(4ULL << 30U);
    open();
    ramDisplay().choose(1);
    EXPECT_EQ(stored("ramInGB"), FakePreferenceStore::Value(true));
    EXPECT_EQ(controller->lastImageKey, "  — - 4.0G-9.0-1-false");
    ramDisplay().choose(0);
    EXPECT_EQ(stored("ramInGB"), FakePreferenceStore::Value(false));
    EXPECT_EQ(controller->lastImageKey, "  — - 25%-9.0-1-false");
    ramDisplay().choose(-1);
    EXPECT_EQ(stored("ramInGB"), FakePreferenceStore::Value(false));
}

TEST_F(SettingsWindowTest, AnyItemButTheSecondStoresAPercentage) {
    open();
    for (const int item : {-1, 0, 2}) {
        platform.store.setBool(true, "ramInGB");
        ramDisplay().choose(item);
        EXPECT_EQ(stored("ramInGB"), FakePreferenceStore::Value(false)) << item;
    }
}

TEST_F(SettingsWindowTest, ChoosingTheSameRAMDisplayAgainStillDraws) {
    open();
    const int images = button().imagesSet;
    ramDisplay().choose(0);
    EXPECT_EQ(button().imagesSet, images + 1);
}

TEST_F(SettingsWindowTest, TheTextSizeIsStoredInItsFormAndShownAtOnce) {
    open();
    const int images = button().imagesSet;
    fontSize().choose(0);
    EXPECT_EQ(stored("fontSize"), FakePreferenceStore::Value(8.0));
    EXPECT_EQ(button().imagesSet, images + 1);
    fontSize().choose(2);
    EXPECT_EQ(stored("fontSize"), FakePreferenceStore::Value(std::int64_t{10}));
    EXPECT_EQ(controller->fontSize(), 10);
    EXPECT_EQ(button().imagesSet, images + 2);
}

TEST_F(SettingsWindowTest, ChoosingTheSameSizeAgainStillDraws) {
    open();
    const int images = button().imagesSet;
    fontSize().choose(1);
    EXPECT_EQ(button().imagesSet, images + 1);
}

TEST_F(SettingsWindowTest, TheIntervalIsStoredAndRestartsTheTimerButLeavesTheImageAlone) {
    open();
    const std::string key = controller->lastImageKey;
    interval().choose(3);
    EXPECT_EQ(stored("refreshInterval"), FakePreferenceStore::Value(std::int64_t{5}));
    ASSERT_EQ(loop().timers.size(), 1U);
    EXPECT_EQ(loop().timers.front().interval, 5.0);
    EXPECT_EQ(controller->lastImageKey, key);
    EXPECT_EQ(button().imagesSet, 1);
    interval().choose(0);
    EXPECT_EQ(stored("refreshInterval"), FakePreferenceStore::Value(0.5));
}

TEST_F(SettingsWindowDeathTest, AChoiceThatIsNotOfferedStopsTheProgram) {
    open();
    EXPECT_DEATH(fontSize().choose(-1), "^$");
    EXPECT_DEATH(interval().choose(4), "^$");
}

TEST_F(SettingsWindowTest, IsBuiltOnceAndShownAgainWhereTheUserPutIt) {
    open();
    window().visible = false;
    platform.store.setInteger(5, "refreshInterval");
    controller->openSettings();
    EXPECT_EQ(application().windowFactory.windows.size(), 1U);
    EXPECT_TRUE(window().visible);
    EXPECT_TRUE(
        calls().inOrder({"center Zephrine Settings", "makeKeyAndOrderFront Zephrine Settings",
                         "makeKeyAndOrderFront Zephrine Settings"}));
    EXPECT_EQ(application().activations, 2);
    EXPECT_EQ(interval().selected, 1);
}

TEST_F(SettingsWindowTest, ClosesThePopover) {
    launch({"--show-dashboard"});
    controller->openSettings();
    EXPECT_FALSE(popover().shown);
    EXPECT_EQ(controller->processRefresh->processTimer, nullptr);
}

TEST_F(SettingsWindowTest, ClosesThePopoverThenShowsTheStatusThenComesToTheFront) {
    launch();
    calls().clear();
    controller->openSettings();
    EXPECT_TRUE(
        calls().inOrder({"performClose", "center Zephrine Settings", "status",
                         "activateIgnoringOtherApps", "makeKeyAndOrderFront Zephrine Settings"}));
}

/// The "Settings…" button of a dashboard.
FakeButton& settingsButton(Dashboard& dashboard) {
    const auto& children = fake<FakeView>(dashboard.view()).children;
    const auto found = std::find_if(children.begin(), children.end(), [](FakeView* child) {
        const auto* button = dynamic_cast<FakeButton*>(child);
        return button != nullptr && button->title == "Settings…";
    });
    return fake<FakeButton>(**found);
}

TEST_F(SettingsWindowTest, OpensFromTheDashboardsButton) {
    launch();
    settingsButton(*controller->dashboard).press();
    EXPECT_TRUE(window().visible);
}

TEST_F(SettingsWindowTest, DoesNotOpenOnceTheControllerIsGone) {
    launch();
    const auto dashboard = controller->dashboard;
    controller.reset();
    settingsButton(*dashboard).press();
    EXPECT_TRUE(application().windowFactory.windows.empty());
}

TEST_F(SettingsWindowTest, OpensAtLaunchWhenAskedTo) {
    launch({"--show-dashboard", "--show-settings"});
    EXPECT_TRUE(window().visible);
    EXPECT_FALSE(popover().shown);
}

TEST_F(SettingsWindowTest, ARefreshWithOnlyTheSettingsOpenLeavesTheDashboardAlone) {
    open();
    platform.host.advance(30, 70);
    controller->refresh();
    EXPECT_EQ(text(controller->dashboard->cpu), "—");
}

}  // namespace
}  // namespace zephrine
