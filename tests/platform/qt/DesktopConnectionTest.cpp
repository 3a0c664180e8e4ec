// SPDX-License-Identifier: MIT
#include "platform/qt/DesktopConnection.h"

#include <gmock/gmock.h>
#include <sys/socket.h>
#include <sys/un.h>

#include <QTemporaryDir>
#include <cstring>
#include <map>

#include "platform/linux/base/FileDescriptor.h"

namespace zephrine {
namespace {

using testing::HasSubstr;

/// Sets variables of the environment and puts them back afterwards.
class Environment {
public:
    ~Environment() {
        for (const auto& [name, value] : before_) {
            value.isNull() ? qunsetenv(name) : qputenv(name, value);
        }
    }
    void set(const char* name, const QByteArray& value) {
        before_.try_emplace(name, qgetenv(name));
        value.isEmpty() ? qunsetenv(name) : qputenv(name, value);
    }

private:
    std::map<const char*, QByteArray> before_;
};

struct DesktopConnectionTest : testing::Test {
    Environment environment;
    QTemporaryDir folder;

    DesktopConnectionTest() {
        environment.set("QT_QPA_PLATFORM", "");
        environment.set("DISPLAY", "");
        environment.set("WAYLAND_DISPLAY", "");
        environment.set("XDG_RUNTIME_DIR", folder.path().toUtf8());
    }
    /// The platform that was found; empty where there is none.
    static QByteArray found() {
        const auto desktop = findDesktop();
        const auto* platform = std::get_if<QByteArray>(&desktop);
        return platform != nullptr ? *platform : QByteArray();
    }
    /// Why none was found; empty where one was.
    static std::string whyNot() {
        const auto desktop = findDesktop();
        const auto* none = std::get_if<NoDesktop>(&desktop);
        return none != nullptr ? none->reason : std::string();
    }
    QByteArray inFolder(const char* name) { return folder.filePath(name).toUtf8(); }
};

TEST_F(DesktopConnectionTest, SaysThatThereIsNoDisplay) {
    EXPECT_EQ(whyNot(), "no display: neither DISPLAY nor WAYLAND_DISPLAY is set");
}

TEST_F(DesktopConnectionTest, SaysThatTheXDisplayDoesNotAnswer) {
    environment.set("DISPLAY", ":9999");
    EXPECT_EQ(whyNot(), "cannot connect to the X display \":9999\"");
}

TEST_F(DesktopConnectionTest, SaysThatTheWaylandDisplayDoesNotAnswer) {
    environment.set("WAYLAND_DISPLAY", "wayland-7");
    EXPECT_EQ(whyNot(), "cannot connect to the Wayland display \"wayland-7\"");
}

TEST_F(DesktopConnectionTest, RefusesAWaylandSocketPathThatIsTooLong) {
    environment.set("WAYLAND_DISPLAY", "/" + QByteArray(500, 'x'));
    EXPECT_THAT(whyNot(), HasSubstr("cannot connect to the Wayland display"));
}

TEST_F(DesktopConnectionTest, FindsAWaylandDisplayThatListens) {
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    const QByteArray path = inFolder("wayland-7");
    ASSERT_LT(static_cast<std::size_t>(path.size()), sizeof address.sun_path);
    std::memcpy(address.sun_path, path.constData(), static_cast<std::size_t>(path.size()));
    const FileDescriptor server(socket(AF_UNIX, SOCK_STREAM, 0));
    ASSERT_EQ(bind(server.get(), reinterpret_cast<const sockaddr*>(&address), sizeof address), 0);
    ASSERT_EQ(listen(server.get(), 1), 0);
    environment.set("WAYLAND_DISPLAY", "wayland-7");
    const QByteArray platform = found();
    if (!platform.isEmpty()) {
        EXPECT_EQ(platform, "wayland");
    } else {  // where Qt's plug-in for it is not installed
        EXPECT_THAT(whyNot(), HasSubstr("not installed"));
    }
}

TEST_F(DesktopConnectionTest, TakesThePlatformsWithoutAScreenAsTheyAre) {
    environment.set("QT_QPA_PLATFORM", "offscreen:size=800x600");
    EXPECT_EQ(found(), "offscreen");
    environment.set("QT_QPA_PLATFORM", "minimal");
    EXPECT_EQ(found(), "minimal");
}

TEST_F(DesktopConnectionTest, ChoosesByItselfAmongThePlatformsWithAScreen) {
    environment.set("QT_QPA_PLATFORM", "no-such-platform");
    EXPECT_EQ(found(), QByteArray());
}

TEST_F(DesktopConnectionTest, KeepsTheDesktopsPlugInsOut) {
    for (const char* name :
         {"QT_QPA_PLATFORMTHEME", "QT_STYLE_OVERRIDE", "SESSION_MANAGER", "QT_XCB_GL_INTEGRATION",
          "QT_WAYLAND_DISABLE_HW_INTEGRATION", "QT_IM_MODULE"}) {
        environment.set(name, "something");
    }
    environment.set("DBUS_SESSION_BUS_ADDRESS", "");
    prepareEnvironment("xcb");
    EXPECT_EQ(qgetenv("QT_QPA_PLATFORM"), "xcb");
    EXPECT_FALSE(qEnvironmentVariableIsSet("QT_QPA_PLATFORMTHEME"));
    EXPECT_FALSE(qEnvironmentVariableIsSet("QT_STYLE_OVERRIDE"));
    EXPECT_FALSE(qEnvironmentVariableIsSet("SESSION_MANAGER"));
    EXPECT_EQ(qgetenv("QT_XCB_GL_INTEGRATION"), "none");
    EXPECT_EQ(qgetenv("DBUS_SESSION_BUS_ADDRESS"), "disabled:") << "no bus of our own is started";
}

}  // namespace
}  // namespace zephrine
