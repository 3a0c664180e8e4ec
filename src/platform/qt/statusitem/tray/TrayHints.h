// SPDX-License-Identifier: MIT
// What a tray tells those who want to stand in it.
#pragma once

#include <xcb/xcb.h>

#include <cstdint>
#include <optional>

namespace zephrine {

struct TrayHints {
    /// The kind of pixels that its windows should have: what it names, else the screen's own.
    xcb_visualid_t visual = XCB_NONE;
    std::uint8_t depth = 0;
    /// It puts its windows below each other, and has no room for wide ones.
    bool isVertical = false;
    [[nodiscard]] bool hasAlpha() const { return depth == 32; }
    bool operator==(const TrayHints&) const = default;
};

/// The hints of the tray `manager`. Absent when its pixels are not four bytes in this machine's
/// order, as they are on every desktop of today.
std::optional<TrayHints> hintsOfTray(xcb_connection_t* connection, const xcb_screen_t& screen,
                                     xcb_window_t manager);

}  // namespace zephrine
