// SPDX-License-Identifier: MIT
// The kind of pixels that a tray wants its windows to have.
#pragma once

#include <xcb/xcb.h>

#include <cstdint>
#include <optional>

namespace zephrine {

struct TrayVisual {
    xcb_visualid_t id = XCB_NONE;
    std::uint8_t depth = 0;
    [[nodiscard]] bool hasAlpha() const { return depth == 32; }
};

/// What the tray `manager` names in _NET_SYSTEM_TRAY_VISUAL, else the screen's own. Absent when its
/// pixels are not four bytes in this machine's order, as they are on every desktop of today.
std::optional<TrayVisual> visualOfTray(xcb_connection_t* connection, const xcb_screen_t& screen,
                                       xcb_window_t manager);

}  // namespace zephrine
