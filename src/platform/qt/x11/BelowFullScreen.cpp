// SPDX-License-Identifier: MIT
// Hints of https://specifications.freedesktop.org/wm-spec/latest/. Other window managers have a
// layer for full-screen windows. GNOME's has none: there, only panels make way. It knows of films
// in windows of Wayland, too, which cannot be seen from here.
#include "platform/qt/x11/BelowFullScreen.h"

#include <array>
#include <string>

#include "platform/qt/x11/X11.h"

namespace zephrine {

namespace {

/// As the window manager tells it; empty when it does not.
std::string windowManagerName(xcb_connection_t* connection) {
    const auto [check, name] =
        internAtoms<2>(connection, {"_NET_SUPPORTING_WM_CHECK", "_NET_WM_NAME"});
    const auto ask = [connection](xcb_window_t window, xcb_atom_t property) {
        constexpr std::uint32_t mostWords = 64;
        return own(xcb_get_property_reply(connection,
                                          xcb_get_property(connection, 0, window, property,
                                                           XCB_GET_PROPERTY_TYPE_ANY, 0, mostWords),
                                          nullptr));
    };
    const auto manager = ask(xcb_setup_roots_iterator(xcb_get_setup(connection)).data->root, check);
    if (!manager || manager->format != 32 || manager->value_len != 1) {
        return {};
    }
    const auto text =
        ask(*static_cast<const xcb_window_t*>(xcb_get_property_value(manager.get())), name);
    if (!text || text->format != 8) {
        return {};
    }
    return {static_cast<const char*>(xcb_get_property_value(text.get())), text->value_len};
}

}  // namespace

void stayBelowFullScreen(QWindow& window) {
    xcb_connection_t* const connection = x11Connection();
    if (connection == nullptr) {
        return;
    }
    const std::string name = windowManagerName(connection);
    if (name != "GNOME Shell" && !name.starts_with("Mutter")) {
        return;  // not everywhere: tiling ones make a panel as wide as the screen
    }
    const auto [type, dock] =
        internAtoms<2>(connection, {"_NET_WM_WINDOW_TYPE", "_NET_WM_WINDOW_TYPE_DOCK"});
    xcb_change_property(connection, XCB_PROP_MODE_REPLACE,
                        static_cast<xcb_window_t>(window.winId()), type, XCB_ATOM_ATOM, 32, 1,
                        &dock);
}

}  // namespace zephrine
