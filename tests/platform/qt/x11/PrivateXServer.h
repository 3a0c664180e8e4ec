// SPDX-License-Identifier: MIT
// An X server of the test's own, which shows nothing but what the test puts there.
#pragma once

#include <xcb/xcb.h>

#include <QByteArray>
#include <QProcess>
#include <QStandardPaths>
#include <array>
#include <cstdint>
#include <stdexcept>

namespace zephrine {

class PrivateXServer {
public:
    static bool isInstalled() { return !QStandardPaths::findExecutable("Xvfb").isEmpty(); }

    PrivateXServer() {
        server_.start("Xvfb",
                      {"-displayfd", "1", "-screen", "0", "300x200x24", "-nolisten", "tcp"});
        if (!server_.waitForReadyRead()) {
            throw std::runtime_error("Xvfb does not start");
        }
        display_ = ":" + server_.readLine().trimmed();
        connection_ = xcb_connect(display_.constData(), nullptr);
        if (xcb_connection_has_error(connection_) != 0) {
            throw std::runtime_error("Xvfb does not answer");
        }
    }
    ~PrivateXServer() {
        xcb_disconnect(connection_);
        server_.kill();
        server_.waitForFinished();
    }
    PrivateXServer(const PrivateXServer&) = delete;
    PrivateXServer& operator=(const PrivateXServer&) = delete;

    [[nodiscard]] const QByteArray& display() const { return display_; }
    /// The test's own connection.
    [[nodiscard]] xcb_connection_t* connection() const { return connection_; }
    [[nodiscard]] xcb_screen_t& screen() const {
        return *xcb_setup_roots_iterator(xcb_get_setup(connection_)).data;
    }

    /// A window of one colour that no window manager cares for, not yet mapped.
    [[nodiscard]] xcb_window_t addWindow(std::uint32_t pixel, std::int16_t y, std::uint16_t width,
                                         std::uint16_t height) const {
        const xcb_window_t window = xcb_generate_id(connection_);
        const std::array<std::uint32_t, 2> values{pixel, 1};
        xcb_create_window(connection_, XCB_COPY_FROM_PARENT, window, screen().root, 0, y, width,
                          height, 0, XCB_WINDOW_CLASS_INPUT_OUTPUT, XCB_COPY_FROM_PARENT,
                          XCB_CW_BACK_PIXEL | XCB_CW_OVERRIDE_REDIRECT, values.data());
        return window;
    }
    void show(xcb_window_t window) const {
        xcb_map_window(connection_, window);
        xcb_flush(connection_);
    }

private:
    QProcess server_;
    QByteArray display_;
    xcb_connection_t* connection_ = nullptr;
};

}  // namespace zephrine
