// SPDX-License-Identifier: MIT
// Looking at panels on a real X server, which shows nothing but what the test puts there.
#include "platform/qt/statusitem/appearance/X11PanelProbe.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include "platform/qt/x11/PrivateXServer.h"
#include "platform/qt/x11/X11.h"

namespace zephrine {
namespace {

constexpr std::uint32_t kDark = 0x303030;
constexpr std::uint32_t kLight = 0xf0f0f0;

TEST(PanelProbe, SeesNothingWithoutAnX11Display) {
    EXPECT_EQ(X11PanelProbe(nullptr).look(getpid()), std::nullopt);
}

class PanelOnX11 : public testing::Test {
protected:
    std::unique_ptr<PrivateXServer> server;
    xcb_connection_t* connection = nullptr;
    std::unique_ptr<X11PanelProbe> probe;

    void SetUp() override {
        if (!PrivateXServer::isInstalled()) {
            GTEST_SKIP() << "there is no Xvfb";
        }
        server = std::make_unique<PrivateXServer>();
        connection = server->connection();
        probe = std::make_unique<X11PanelProbe>(connection);
    }

    xcb_window_t addWindow(std::uint32_t pixel, std::int16_t y) {
        return server->addWindow(pixel, y, 300, 20);
    }
    void show(xcb_window_t window) { server->show(window); }
    xcb_window_t addPanel(std::uint32_t pixel, std::int16_t y, std::uint32_t pid) {
        const auto [type, dock, pidName] = internAtoms<3>(
            connection, {"_NET_WM_WINDOW_TYPE", "_NET_WM_WINDOW_TYPE_DOCK", "_NET_WM_PID"});
        const xcb_window_t window = addWindow(pixel, y);
        xcb_change_property(connection, XCB_PROP_MODE_REPLACE, window, type, XCB_ATOM_ATOM, 32, 1,
                            &dock);
        xcb_change_property(connection, XCB_PROP_MODE_REPLACE, window, pidName, XCB_ATOM_CARDINAL,
                            32, 1, &pid);
        show(window);
        return window;
    }
    void paint(xcb_window_t window, std::uint32_t pixel) {
        xcb_change_window_attributes(connection, window, XCB_CW_BACK_PIXEL, &pixel);
        xcb_clear_area(connection, 0, window, 0, 0, 0, 0);
        xcb_flush(connection);
    }
};

TEST_F(PanelOnX11, IsAbsentAmongOtherWindows) {
    show(addWindow(kDark, 0));
    EXPECT_EQ(probe->look(1000), std::nullopt);
}

TEST_F(PanelOnX11, IsSeenAsDarkOrLight) {
    const xcb_window_t panel = addPanel(kDark, 0, 1000);
    EXPECT_EQ(probe->look(1000), Appearance::darkAqua);
    paint(panel, kLight);
    EXPECT_EQ(probe->look(1000), Appearance::aqua);
}

TEST_F(PanelOnX11, IsSeenBeneathItsIconsAndTexts) {
    const xcb_window_t panel = addPanel(kDark, 0, 1000);
    const xcb_gcontext_t context = xcb_generate_id(connection);
    xcb_create_gc(connection, context, panel, XCB_GC_FOREGROUND, &kLight);
    const xcb_rectangle_t icons{100, 0, 120, 20};
    xcb_poly_fill_rectangle(connection, panel, context, 1, &icons);
    EXPECT_EQ(probe->look(1000), Appearance::darkAqua);
}

TEST_F(PanelOnX11, IsTheHostsOwnWhereThereAreSeveral) {
    addPanel(kLight, 0, 1000);
    addPanel(kDark, 100, 2000);
    EXPECT_EQ(probe->look(2000), Appearance::darkAqua);
    EXPECT_EQ(probe->look(1000), Appearance::aqua);
}

TEST_F(PanelOnX11, IsThatOfTheProcessWhichStartedTheHost) {
    addPanel(kLight, 0, 1);
    addPanel(kDark, 100, static_cast<std::uint32_t>(getppid()));
    addPanel(kLight, 150, 2);
    EXPECT_EQ(probe->look(getpid()), Appearance::darkAqua);
}

TEST_F(PanelOnX11, IsAnyPanelWhenTheHostHasNone) {
    addPanel(kDark, 0, 1000);
    EXPECT_EQ(probe->look(2000), Appearance::darkAqua);
    EXPECT_EQ(probe->look(std::nullopt), Appearance::darkAqua);
}

TEST_F(PanelOnX11, IsAbsentWhileItIsHiddenAndWhenItIsGone) {
    const xcb_window_t panel = addPanel(kDark, 0, 1000);
    EXPECT_EQ(probe->look(1000), Appearance::darkAqua);
    xcb_unmap_window(connection, panel);
    EXPECT_EQ(probe->look(1000), std::nullopt);
    xcb_destroy_window(connection, panel);
    EXPECT_EQ(probe->look(1000), std::nullopt);
    addPanel(kLight, 0, 1000);
    EXPECT_EQ(probe->look(1000), Appearance::aqua);
}

TEST_F(PanelOnX11, IsSeenBesideTheWorkAreaWhereTheDesktopDrawsIt) {
    const auto [name] = internAtoms<1>(connection, {"_GTK_WORKAREAS_D0"});
    const std::array<std::uint32_t, 4> workArea{0, 0, 300, 160};
    xcb_change_property(connection, XCB_PROP_MODE_REPLACE, server->screen().root, name,
                        XCB_ATOM_CARDINAL, 32, workArea.size(), workArea.data());
    paint(server->screen().root, kLight);
    EXPECT_EQ(probe->look(1000), Appearance::aqua);
    paint(server->screen().root, kDark);
    EXPECT_EQ(probe->look(1000), Appearance::darkAqua);
    addPanel(kLight, 0, 1000);
    EXPECT_EQ(probe->look(1000), Appearance::aqua);
}

TEST_F(PanelOnX11, MayReachBeyondTheScreen) {
    addPanel(kDark, -5, 1000);
    EXPECT_EQ(probe->look(1000), Appearance::darkAqua);
}

TEST_F(PanelOnX11, IsAbsentWhenItSlidOffTheScreen) {
    addPanel(kDark, -18, 1000);
    EXPECT_EQ(probe->look(1000), std::nullopt);
}

}  // namespace
}  // namespace zephrine
