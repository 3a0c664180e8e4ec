// SPDX-License-Identifier: MIT
#include "platform/qt/statusitem/HostForm.h"

#include <gtest/gtest.h>

namespace zephrine {
namespace {

TEST(HostForm, GivesWidePicturesToPanelsThatKeepThemWide) {
    EXPECT_EQ(formOfHost("waybar"), HostForm::wideDoubled);
    EXPECT_EQ(formOfHost("xapp-sn-watcher"), HostForm::wideDoubled);
    EXPECT_EQ(formOfHost("notification-ar"), HostForm::wideExact);
}

TEST(HostForm, GivesSquaresToPanelsThatSqueeze) {
    for (const char* command : {"panel-3-systray", "panel-12-systra", "xfce4-panel", "lxqt-panel",
                                "kded5", "kded6", "plasmashell", "swaybar", "gnome-shell"}) {
        EXPECT_EQ(formOfHost(command), HostForm::squares) << command;
    }
}

TEST(HostForm, GivesBothToAPanelThatItDoesNotKnow) {
    for (const char* command : {"", "w", "my-panel", "Waybar"}) {
        EXPECT_EQ(formOfHost(command), HostForm::mixed) << command;
    }
}

}  // namespace
}  // namespace zephrine
