// SPDX-License-Identifier: MIT
#include "platform/linux/desktop/InstancePlace.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <array>
#include <cstdlib>
#include <optional>
#include <string>

#include "platform/linux/FakeTree.h"

namespace zephrine {
namespace {

class InstancePlaceTest : public ::testing::Test {
protected:
    InstancePlaceTest() {
        ::setenv("DISPLAY", ":5", 1);
        ::setenv("WAYLAND_DISPLAY", "wayland-1", 1);
        ::setenv("XDG_RUNTIME_DIR", folder.root().c_str(), 1);
    }
    ~InstancePlaceTest() override {
        for (const auto& [name, value] : before) {
            value ? ::setenv(name, value->c_str(), 1) : ::unsetenv(name);
        }
    }
    InstancePlaceTest(const InstancePlaceTest&) = delete;
    InstancePlaceTest& operator=(const InstancePlaceTest&) = delete;

    static InstancePlace onDisplay(const char* name) {
        ::setenv("DISPLAY", name, 1);
        return InstancePlace::current("xcb");
    }

    testing::FakeTree folder;  // private to the user, as made

private:
    struct Variable {
        const char* name;
        std::optional<std::string> value;
    };
    static Variable variable(const char* name) {
        const char* const value = std::getenv(name);
        return {name, value != nullptr ? std::optional<std::string>(value) : std::nullopt};
    }
    const std::array<Variable, 3> before{variable("DISPLAY"), variable("WAYLAND_DISPLAY"),
                                         variable("XDG_RUNTIME_DIR")};
};

TEST_F(InstancePlaceTest, IsTheDisplayThatTheProgramConnectsTo) {
    EXPECT_EQ(InstancePlace::current("xcb").display, ":5");
    EXPECT_EQ(InstancePlace::current("wayland").display, "wayland-1");
    EXPECT_EQ(InstancePlace::current("offscreen").display, "");
}

TEST_F(InstancePlaceTest, GivesEachDisplayNamesOfItsOwn) {
    const InstancePlace place = onDisplay(":5");
    EXPECT_EQ(place.busName(), "org.zephrine.Zephrine.Display__3a5");
    EXPECT_EQ(place.socketPath(), folder.root() + "/zephrine/_3a5.socket");
    const InstancePlace other = onDisplay("127.0.0.1:5");
    EXPECT_EQ(other.busName(), "org.zephrine.Zephrine.Display_127_2e0_2e0_2e1_3a5");
    EXPECT_NE(other.socketPath(), place.socketPath());
}

TEST_F(InstancePlaceTest, CountsTheScreensOfADisplayAsOneSession) {
    EXPECT_EQ(onDisplay(":5.0").busName(), onDisplay(":5").busName());
    EXPECT_EQ(onDisplay("host:10.12").busName(), onDisplay("host:10").busName());
    EXPECT_NE(onDisplay(":50").busName(), onDisplay(":5").busName());
    EXPECT_NE(onDisplay("1.2.3.4").busName(), onDisplay("1.2.3").busName());
}

TEST_F(InstancePlaceTest, HasNamesOfBoundedLengthForAnyDisplay) {
    const InstancePlace place = onDisplay((std::string(100'000, '/') + ":7").c_str());
    EXPECT_LE(place.busName().size(), 255U);
    EXPECT_EQ(place.busName().substr(place.busName().size() - 4), "_3a7");
    EXPECT_LE(place.socketPath().size(), folder.root().size() + 107);
}

TEST_F(InstancePlaceTest, HasNoNamesWithoutADisplay) {
    EXPECT_EQ(InstancePlace::current("offscreen").busName(), "");
    EXPECT_EQ(InstancePlace::current("offscreen").socketPath(), "");
}

TEST_F(InstancePlaceTest, UsesOnlyARuntimeFolderThatIsClosedToOthers) {
    const std::string path = folder.root();
    EXPECT_EQ(InstancePlace::current("xcb").runtimeFolder, path);
    ::chmod(path.c_str(), S_IRWXU | S_IRWXG);
    EXPECT_EQ(InstancePlace::current("xcb").runtimeFolder, "");
    EXPECT_EQ(InstancePlace::current("xcb").socketPath(), "");
    for (const char* const wrong : {"", "relative", "/nonexistent", "/dev/null"}) {
        ::setenv("XDG_RUNTIME_DIR", wrong, 1);
        EXPECT_EQ(InstancePlace::current("xcb").runtimeFolder, "") << wrong;
    }
}

}  // namespace
}  // namespace zephrine
