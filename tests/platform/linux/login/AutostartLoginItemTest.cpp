// SPDX-License-Identifier: MIT
#include "platform/linux/login/AutostartLoginItem.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <string>

#include "platform/linux/Captured.h"
#include "platform/linux/FakeTree.h"
#include "platform/linux/base/ConfigHome.h"

namespace zephrine {
namespace {

class AutostartLoginItemTest : public ::testing::Test {
protected:
    AutostartLoginItemTest() {
        writeProgram("bin/zephrine");
        writeProgram("bin/env");
    }
    void writeProgram(const std::string& name) const {
        tree_.write(name, "#!/bin/sh\n");
        ::chmod(tree_.path(name).c_str(), S_IRWXU);
    }
    [[nodiscard]] AutostartEnvironment environment(const std::string& program = "") const {
        return {.configHome = tree_.path("config"),
                .currentDesktop = "GNOME",
                .searchPath = "relative::" + tree_.path("none") + ":" + tree_.path("bin"),
                .program = program};
    }
    [[nodiscard]] LoginItemStatus status() const {
        return AutostartLoginItem(environment()).status();
    }
    void enter(const std::string& text) const { tree_.write(kEntry, text); }
    void enterProgram(const std::string& exec) const {
        enter("[Desktop Entry]\nType=Application\nName=x\nExec=" + exec + "\n");
    }

    static constexpr const char* kEntry = "config/autostart/zephrine.desktop";
    testing::FakeTree tree_;
};

TEST_F(AutostartLoginItemTest, IsNotRegisteredWithoutAnEntry) {
    EXPECT_EQ(status(), LoginItemStatus::notRegistered);
    tree_.write("config/autostart/other.desktop", "[Desktop Entry]\n");
    EXPECT_EQ(status(), LoginItemStatus::notRegistered);
}

TEST_F(AutostartLoginItemTest, IsNotFoundWithoutAHome) {
    EXPECT_EQ(AutostartLoginItem(AutostartEnvironment{.searchPath = "/usr/bin"}).status(),
              LoginItemStatus::notFound);
}

TEST_F(AutostartLoginItemTest, FollowsTheEntryAtEachCall) {
    enter(testing::captured("autostart/ours.desktop"));
    EXPECT_EQ(status(), LoginItemStatus::enabled);
    enter(testing::captured("autostart/hidden-only.desktop"));
    EXPECT_EQ(status(), LoginItemStatus::requiresApproval);
    tree_.remove(kEntry);
    EXPECT_EQ(status(), LoginItemStatus::notRegistered);
}

TEST_F(AutostartLoginItemTest, LooksForTheProgramWhereItWouldBeStarted) {
    enterProgram("zephrine --show-dashboard");
    EXPECT_EQ(status(), LoginItemStatus::enabled);
    enterProgram("\"" + tree_.path("bin/zephrine") + "\"");
    EXPECT_EQ(status(), LoginItemStatus::enabled);
    enterProgram(tree_.path("bin/elsewhere"));
    EXPECT_EQ(status(), LoginItemStatus::notFound);
    enterProgram("bin/zephrine");
    EXPECT_EQ(status(), LoginItemStatus::notFound);
}

TEST_F(AutostartLoginItemTest, IsNotFoundWhenTheProgramCannotBeRun) {
    enterProgram(tree_.path("bin"));
    EXPECT_EQ(status(), LoginItemStatus::notFound);
    enterProgram(tree_.path("bin/zephrine"));
    ::chmod(tree_.path("bin/zephrine").c_str(), S_IRUSR);
    EXPECT_EQ(status(), LoginItemStatus::notFound);
}

TEST_F(AutostartLoginItemTest, IsNotFoundWhenTheEntryIsNone) {
    enter(testing::captured("autostart/hostile-nul-bytes.desktop"));
    EXPECT_EQ(status(), LoginItemStatus::notFound);
    enter("[Desktop Entry]\nType=Application\nExec=zephrine\n#" + std::string(100'000, 'x'));
    EXPECT_EQ(status(), LoginItemStatus::notFound);
    tree_.remove(kEntry);
    tree_.write(std::string(kEntry) + "/inside", "");
    EXPECT_EQ(status(), LoginItemStatus::notFound);
}

TEST_F(AutostartLoginItemTest, RegistersThisProgramAndUnregistersIt) {
    for (const char* const name : {"bin/zephrine", R"(bin/of "100%" $x/zeph\rine)"}) {
        writeProgram(name);
        AutostartLoginItem item(environment(tree_.path(name)));
        EXPECT_EQ(item.registerItem(), std::nullopt);
        EXPECT_EQ(item.status(), LoginItemStatus::enabled) << name;
        tree_.remove(name);
        EXPECT_EQ(item.status(), LoginItemStatus::notFound) << name;
        EXPECT_EQ(item.unregisterItem(), std::nullopt);
        EXPECT_EQ(item.status(), LoginItemStatus::notRegistered);
    }
}

TEST_F(AutostartLoginItemTest, SwitchesAnEntryOnThatWasSwitchedOff) {
    enter("[Desktop Entry]\nHidden=true\n");
    AutostartLoginItem item(environment(tree_.path("bin/zephrine")));
    EXPECT_EQ(item.status(), LoginItemStatus::requiresApproval);
    EXPECT_EQ(item.registerItem(), std::nullopt);
    EXPECT_EQ(item.status(), LoginItemStatus::enabled);
}

TEST_F(AutostartLoginItemTest, MayUnregisterWhatIsNotRegistered) {
    EXPECT_EQ(AutostartLoginItem(environment()).unregisterItem(), std::nullopt);
    EXPECT_EQ(AutostartLoginItem(AutostartEnvironment{}).unregisterItem(), std::nullopt);
}

TEST_F(AutostartLoginItemTest, SaysInTheSystemsWordsWhatWentWrong) {
    tree_.write("config", "a file where the folder should be");
    const auto error = AutostartLoginItem(environment(tree_.path("bin/zephrine"))).registerItem();
    EXPECT_EQ(error, tree_.path(kEntry) + ": Not a directory");
    tree_.remove("config");
    tree_.write(std::string(kEntry) + "/inside", "");
    EXPECT_EQ(AutostartLoginItem(environment()).unregisterItem(),
              tree_.path(kEntry) + ": Is a directory");
}

TEST_F(AutostartLoginItemTest, CannotRegisterWithoutAHomeOrAProgram) {
    EXPECT_EQ(AutostartLoginItem(AutostartEnvironment{.program = "/x"}).registerItem(),
              "There is no home folder to keep the entry in.");
    EXPECT_EQ(AutostartLoginItem(environment("")).registerItem(),
              "The program's own file cannot be found.");
}

TEST_F(AutostartLoginItemTest, SaysInASandboxThatItCannot) {
    AutostartEnvironment inside = environment(tree_.path("bin/zephrine"));
    inside.sandbox = "Flatpak";
    AutostartLoginItem item(inside);
    enterProgram("zephrine");
    EXPECT_EQ(item.status(), LoginItemStatus::notFound);
    EXPECT_EQ(item.registerItem().value_or("").substr(0, 8), "Flatpak ");
    EXPECT_EQ(item.unregisterItem(), std::nullopt);
    EXPECT_EQ(status(), LoginItemStatus::enabled) << "nothing was touched";
}

TEST_F(AutostartLoginItemTest, KnowsTheSandboxes) {
    const std::string none = tree_.path(".flatpak-info");
    EXPECT_EQ(sandboxOf("/usr/bin/zephrine", "", none.c_str()), "");
    EXPECT_EQ(sandboxOf("/snap/zephrine/1/bin/zephrine", "/snap/zephrine/1", none.c_str()), "Snap");
    EXPECT_EQ(sandboxOf("/usr/bin/zephrine", "/snap/editor/7", none.c_str()), "")
        << "started from the terminal of a snap";
    EXPECT_EQ(sandboxOf("/usr/bin/zephrine", "/usr/bin/zeph", none.c_str()), "");
    tree_.write(".flatpak-info", "");
    EXPECT_EQ(sandboxOf("/app/bin/zephrine", "", none.c_str()), "Flatpak");
}

TEST(ConfigHome, IsTheXDGFolderElseTheOneInTheHome) {
    EXPECT_EQ(configHome("/xdg", "/home/me"), "/xdg");
    EXPECT_EQ(configHome(nullptr, "/home/me"), "/home/me/.config");
    EXPECT_EQ(configHome("", "/home/me"), "/home/me/.config");
}

TEST(ConfigHome, IsNowhereWithoutAnAbsolutePath) {
    EXPECT_EQ(configHome("relative", "/home/me"), "/home/me/.config");
    EXPECT_EQ(configHome("relative", nullptr), "");
    EXPECT_EQ(configHome(nullptr, "relative"), "");
    EXPECT_EQ(configHome(nullptr, nullptr), "");
}

}  // namespace
}  // namespace zephrine
