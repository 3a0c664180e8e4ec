// SPDX-License-Identifier: MIT
#include "platform/linux/login/AutostartStatus.h"

#include <gtest/gtest.h>

#include <string>

namespace zephrine {
namespace {

LoginItemStatus status(const std::string& lines, std::string_view desktop = "GNOME") {
    const auto entry = DesktopEntry::parse("[Desktop Entry]\nType=Application\n" + lines);
    return autostartStatus(entry.value(), desktop, [](std::string_view program) {
        return program == "zephrine" || program == "/usr/bin/zephrine";
    });
}

TEST(AutostartStatus, IsEnabledForAnEntryWhoseProgramExists) {
    EXPECT_EQ(status("Exec=zephrine"), LoginItemStatus::enabled);
    EXPECT_EQ(status("Exec=/usr/bin/zephrine --x\nTryExec=zephrine\nHidden=false"),
              LoginItemStatus::enabled);
}

TEST(AutostartStatus, RequiresApprovalWhenADesktopSwitchedItOff) {
    for (const char* const line :
         {"Hidden=true", "X-GNOME-Autostart-enabled=false", "X-MATE-Autostart-enabled=false",
          "X-XFCE-Autostart-Enabled=false", "X-systemd-skip=true"}) {
        EXPECT_EQ(status(std::string("Exec=zephrine\n") + line), LoginItemStatus::requiresApproval)
            << line;
    }
}

TEST(AutostartStatus, RequiresApprovalWhenNothingIsLeftButTheSwitch) {
    const auto entry = DesktopEntry::parse("[Desktop Entry]\nHidden=true\n");
    EXPECT_EQ(autostartStatus(entry.value(), "", [](std::string_view) { return false; }),
              LoginItemStatus::requiresApproval);
}

TEST(AutostartStatus, IsNotFooledByOtherKeysThatAreFalse) {
    EXPECT_EQ(status("Exec=zephrine\nX-GNOME-Autostart-enabled=true\nTerminal=false\n"
                     "X-Autostart-enabled-not=false\nNoDisplay=true"),
              LoginItemStatus::enabled);
}

TEST(AutostartStatus, IsNotFoundWithoutAProgramThatCanBeRun) {
    for (const char* const lines :
         {"", "Exec=", "Exec=other", "Exec=\"zephrine", "Exec=zephrine\nTryExec=other",
          "Exec=zephrine\nType=Link", "Exec=zephrine 'x", "Exec=zep\\hrine"}) {
        EXPECT_EQ(status(lines), LoginItemStatus::notFound) << lines;
    }
}

TEST(AutostartStatus, RequiresApprovalOnADesktopThatTheEntryIsNotFor) {
    const std::string program = "Exec=zephrine\n";
    EXPECT_EQ(status(program + "OnlyShowIn=KDE;XFCE;"), LoginItemStatus::requiresApproval);
    EXPECT_EQ(status(program + "NotShowIn=KDE;GNOME;"), LoginItemStatus::requiresApproval);
    EXPECT_EQ(status(program + "OnlyShowIn=KDE;", ""), LoginItemStatus::requiresApproval);
    EXPECT_EQ(status(program + "OnlyShowIn="), LoginItemStatus::requiresApproval);
}

TEST(AutostartStatus, IsEnabledOnADesktopThatTheEntryIsFor) {
    const std::string program = "Exec=zephrine\n";
    EXPECT_EQ(status(program + "OnlyShowIn=KDE;GNOME;", "ubuntu:GNOME"), LoginItemStatus::enabled);
    EXPECT_EQ(status(program + "NotShowIn=KDE;"), LoginItemStatus::enabled);
    EXPECT_EQ(status(program + "NotShowIn=KDE;", ""), LoginItemStatus::enabled);
}

TEST(AutostartStatus, LetsTheFirstNameOfTheDesktopThatIsListedDecide) {
    const std::string lines = "Exec=zephrine\nOnlyShowIn=ubuntu;\nNotShowIn=GNOME;\n";
    EXPECT_EQ(status(lines, "ubuntu:GNOME"), LoginItemStatus::enabled);
    EXPECT_EQ(status(lines, "GNOME:ubuntu"), LoginItemStatus::requiresApproval);
}

}  // namespace
}  // namespace zephrine
