// SPDX-License-Identifier: MIT
// The look that the settings manager of an X11 desktop gives its applications, followed live: for
// desktops without a settings portal, or with one that does not know.
#pragma once

#include <QObject>
#include <functional>
#include <memory>

#include "platform/linux/desktop/DesktopLook.h"
#include "platform/qt/x11/X11Client.h"

namespace zephrine {

class DesktopTheme final : public QObject {
public:
    /// `changed` is called whenever the look is another one than before, light and animated at
    /// first.
    explicit DesktopTheme(std::function<void(const DesktopLook&)> changed);

    /// Without effect where the display is no X11 one.
    void follow();

private:
    void handle(const xcb_generic_event_t& event);
    void findManager();
    void read();

    std::function<void(const DesktopLook&)> changed_;
    std::unique_ptr<X11Client> connection_;
    xcb_atom_t selection_ = XCB_ATOM_NONE;
    xcb_atom_t settings_ = XCB_ATOM_NONE;
    xcb_atom_t managerMessage_ = XCB_ATOM_NONE;
    xcb_window_t manager_ = XCB_WINDOW_NONE;
    DesktopLook look_;
};

}  // namespace zephrine
