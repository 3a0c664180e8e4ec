// SPDX-License-Identifier: MIT
// https://specifications.freedesktop.org/systemtray-spec, "Tray manager hints".
#include "platform/qt/statusitem/tray/TrayHints.h"

#include <bit>

#include "platform/qt/statusitem/X11.h"

namespace zephrine {

namespace {

/// 0 when the tray has no such hint.
std::uint32_t hint(xcb_connection_t* connection, xcb_window_t manager, xcb_atom_t name,
                   xcb_atom_t type) {
    const auto reply = own(xcb_get_property_reply(
        connection, xcb_get_property(connection, 0, manager, name, type, 0, 1), nullptr));
    if (!reply || reply->format != 32 || reply->value_len != 1) {
        return 0;
    }
    return *static_cast<const std::uint32_t*>(xcb_get_property_value(reply.get()));
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

bool hasPlainPixels(const xcb_setup_t* setup, std::uint8_t depth) {
    const bool isLittle = setup->image_byte_order == XCB_IMAGE_ORDER_LSB_FIRST;
    if (depth < 24 || isLittle != (std::endian::native == std::endian::little)) {
        return false;
    }
    for (auto format = xcb_setup_pixmap_formats_iterator(setup); format.rem > 0;
         xcb_format_next(&format)) {
        if (format.data->depth == depth) {
            return format.data->bits_per_pixel == 32;
        }
    }
    return false;
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
    return hasPlainPixels(xcb_get_setup(connection), hints.depth) ? std::optional(hints)
                                                                  : std::nullopt;
}

}  // namespace zephrine
