// SPDX-License-Identifier: MIT
// https://specifications.freedesktop.org/systemtray-spec, "Tray manager hints".
#include "platform/qt/statusitem/tray/TrayHints.h"

#include "platform/qt/x11/X11.h"

namespace zephrine {

namespace {

/// 0 when the tray has no such hint.
std::uint32_t hint(xcb_connection_t* connection, xcb_window_t manager, xcb_atom_t name,
                   xcb_atom_t type) {
    const auto words =
        propertyWords(connection, xcb_get_property(connection, 0, manager, name, type, 0, 1));
    return words.size() == 1 ? words.front() : 0;
}

/// 0 when the screen has no such visual.
std::uint8_t depthOf(const xcb_screen_t& screen, xcb_visualid_t visual) {
    for (auto depth = xcb_screen_allowed_depths_iterator(&screen); depth.rem > 0;
         xcb_depth_next(&depth)) {
        for (auto entry = xcb_depth_visuals_iterator(depth.data); entry.rem > 0;
             xcb_visualtype_next(&entry)) {
            if (entry.data->visual_id == visual) {
                return depth.data->depth;
            }
        }
    }
    return 0;
}

}  // namespace

std::optional<TrayHints> hintsOfTray(xcb_connection_t* connection, const xcb_screen_t& screen,
                                     xcb_window_t manager) {
    const auto [visual, orientation] =
        internAtoms<2>(connection, {"_NET_SYSTEM_TRAY_VISUAL", "_NET_SYSTEM_TRAY_ORIENTATION"});
    constexpr std::uint32_t vertical = 1;  // _NET_SYSTEM_TRAY_ORIENTATION_VERT
    TrayHints hints;
    hints.isVertical = hint(connection, manager, orientation, XCB_ATOM_CARDINAL) == vertical;
    hints.visual = hint(connection, manager, visual, XCB_ATOM_VISUALID);
    hints.depth = depthOf(screen, hints.visual);
    if (hints.depth == 0) {
        hints.visual = screen.root_visual;
        hints.depth = screen.root_depth;
    }
    return hasPlainPixels(connection, hints.depth) ? std::optional(hints) : std::nullopt;
}

}  // namespace zephrine
