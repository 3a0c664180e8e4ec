// SPDX-License-Identifier: MIT
#include "platform/qt/statusitem/host/HostForm.h"

#include <gtest/gtest.h>

namespace zephrine {
namespace {

HostForm formOf(const char* command) {
    return formOfHost({.pid = 42, .command = command});
}

TEST(HostForm, GivesWidePicturesToPanelsThatKeepThemWide) {
    EXPECT_EQ(formOf("xapp-sn-watcher"), HostForm::wideDoubled);
    EXPECT_EQ(formOf("notification-ar"), HostForm::wideDoubled);
}

TEST(HostForm, GivesSquaresOfAnotherKindToABarThatDoesNotMultiply) {
    EXPECT_EQ(formOf("swaybar"), HostForm::multipliedSquares);
}

TEST(HostForm, GivesOneLineToABarThatScalesPicturesToItsText) {
    EXPECT_EQ(formOf("waybar"), HostForm::line);
}

TEST(HostForm, GivesSquaresToPanelsThatSqueeze) {
    for (const char* command : {"panel-3-systray", "panel-12-systra", "xfce4-panel", "lxqt-panel",
                                "kded5", "kded6", "plasmashell"}) {
        EXPECT_EQ(formOf(command), HostForm::squares) << command;
    }
}

TEST(HostForm, GivesGNOMEAFileSinceItsVersion45AndALabelBefore) {
    const auto formOfGNOME = [](std::optional<int> version) {
        return formOfHost({.pid = 42, .command = "gnome-shell", .version = version});
    };
    EXPECT_EQ(formOfGNOME(43), HostForm::labelled);
    EXPECT_EQ(formOfGNOME(44), HostForm::labelled);
    EXPECT_EQ(formOfGNOME(45), HostForm::wideFile);
    EXPECT_EQ(formOfGNOME(49), HostForm::wideFile);
    EXPECT_EQ(formOfGNOME(std::nullopt), HostForm::labelled) << "it did not tell";
}

TEST(HostForm, KnowsWhoseTrayIsBetter) {
    const auto isBetter = [](const char* command) {
        return hasBetterTray({.pid = 42, .command = command});
    };
    EXPECT_TRUE(isBetter("panel-3-systray"));
    EXPECT_TRUE(isBetter("xfce4-panel"));
    for (const char* command : {"", "lxqt-panel", "notification-ar", "plasmashell", "panel"}) {
        EXPECT_FALSE(isBetter(command)) << command;
    }
}

TEST(HostForm, GivesBothToAPanelThatItDoesNotKnow) {
    for (const char* command : {"", "w", "my-panel", "Waybar"}) {
        EXPECT_EQ(formOf(command), HostForm::mixed) << command;
    }
}

}  // namespace
}  // namespace zephrine
