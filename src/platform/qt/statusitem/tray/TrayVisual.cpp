// SPDX-License-Identifier: MIT
// https://specifications.freedesktop.org/systemtray-spec, "Tray manager hints".
#include "platform/qt/statusitem/tray/TrayVisual.h"

#include <bit>

#include "platform/qt/statusitem/X11.h"

namespace zephrine {

namespace {

xcb_visualid_t wantedVisual(xcb_connection_t* connection, xcb_window_t manager) {
    const auto name = internAtoms<1>(connection, {"_NET_SYSTEM_TRAY_VISUAL"})[0];
    const auto reply = own(xcb_get_property_reply(
        connection, xcb_get_property(connection, 0, manager, name, XCB_ATOM_VISUALID, 0, 1),
        nullptr));
    if (!reply || reply->format != 32 || reply->value_len != 1) {
        return XCB_NONE;
    }
    return *static_cast<const xcb_visualid_t*>(xcb_get_property_value(reply.get()));
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

std::optional<TrayVisual> visualOfTray(xcb_connection_t* connection, const xcb_screen_t& screen,
                                       xcb_window_t manager) {
    TrayVisual visual{wantedVisual(connection, manager), 0};
    visual.depth = depthOf(screen, visual.id);
    if (visual.depth == 0) {
        visual = {screen.root_visual, screen.root_depth};
    }
    return hasPlainPixels(xcb_get_setup(connection), visual.depth) ? std::optional(visual)
                                                                   : std::nullopt;
}

}  // namespace zephrine
