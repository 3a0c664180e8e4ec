// SPDX-License-Identifier: MIT
#include "platform/linux/desktop/InstancePlace.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <QByteArray>
#include <QTemporaryDir>
#include <string>

namespace zephrine {
namespace {

struct InstancePlaceTest : testing::Test {
    InstancePlaceTest() {
        qputenv("DISPLAY", ":5");
        qputenv("WAYLAND_DISPLAY", "wayland-1");
        qputenv("XDG_RUNTIME_DIR", folder.path().toUtf8());
    }
    ~InstancePlaceTest() override {
        restore("DISPLAY", display);
        restore("WAYLAND_DISPLAY", waylandDisplay);
        restore("XDG_RUNTIME_DIR", runtimeFolder);
    }
    Q_DISABLE_COPY_MOVE(InstancePlaceTest)

    static InstancePlace onDisplay(const char* name) {
        qputenv("DISPLAY", name);
        return InstancePlace::current("xcb");
    }

    QTemporaryDir folder;  // private to the user, as made

private:
    static void restore(const char* name, const QByteArray& value) {
        value.isNull() ? qunsetenv(name) : qputenv(name, value);
    }
    const QByteArray display = qgetenv("DISPLAY");
    const QByteArray waylandDisplay = qgetenv("WAYLAND_DISPLAY");
    const QByteArray runtimeFolder = qgetenv("XDG_RUNTIME_DIR");
};

TEST_F(InstancePlaceTest, IsTheDisplayThatTheProgramConnectsTo) {
    EXPECT_EQ(InstancePlace::current("xcb").display, ":5");
    EXPECT_EQ(InstancePlace::current("wayland").display, "wayland-1");
    EXPECT_EQ(InstancePlace::current("offscreen").display, "");
}

TEST_F(InstancePlaceTest, GivesEachDisplayNamesOfItsOwn) {
    const InstancePlace place = onDisplay(":5");
    EXPECT_EQ(place.busName(), "org.zephrine.Zephrine.Display__3a5");
    EXPECT_EQ(place.socketPath(), folder.path().toStdString() + "/zephrine/_3a5.socket");
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
    EXPECT_LE(place.socketPath().size(), folder.path().toStdString().size() + 107);
}

TEST_F(InstancePlaceTest, HasNoNamesWithoutADisplay) {
    EXPECT_EQ(InstancePlace::current("offscreen").busName(), "");
    EXPECT_EQ(InstancePlace::current("offscreen").socketPath(), "");
}

TEST_F(InstancePlaceTest, UsesOnlyARuntimeFolderThatIsClosedToOthers) {
    const std::string path = folder.path().toStdString();
    EXPECT_EQ(InstancePlace::current("xcb").runtimeFolder, path);
    ::chmod(path.c_str(), S_IRWXU | S_IRWXG);
    EXPECT_EQ(InstancePlace::current("xcb").runtimeFolder, "");
    EXPECT_EQ(InstancePlace::current("xcb").socketPath(), "");
    for (const char* const wrong : {"", "relative", "/nonexistent", "/dev/null"}) {
        qputenv("XDG_RUNTIME_DIR", wrong);
        EXPECT_EQ(InstancePlace::current("xcb").runtimeFolder, "") << wrong;
    }
}

}  // namespace
}  // namespace zephrine
