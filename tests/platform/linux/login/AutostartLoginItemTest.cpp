// SPDX-License-Identifier: MIT
#include "platform/linux/login/AutostartLoginItem.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <string>

#include "platform/linux/FakeTree.h"
#include "platform/linux/base/ConfigHome.h"

namespace zephrine {
namespace {

class AutostartLoginItemTest : public ::testing::Test {
protected:
    AutostartLoginItemTest() {
        tree_.write("bin/zephrine", "#!/bin/sh\n");
        ::chmod(tree_.path("bin/zephrine").c_str(), S_IRWXU);
    }
    [[nodiscard]] LoginItemStatus status() const {
        return AutostartLoginItem({tree_.path("config"), "GNOME",
                                   "relative::" + tree_.path("none") + ":" + tree_.path("bin"), ""})
            .status();
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
    EXPECT_EQ(AutostartLoginItem({"", "GNOME", "/usr/bin", ""}).status(),
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
