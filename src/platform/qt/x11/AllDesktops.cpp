// SPDX-License-Identifier: MIT
// _NET_WM_DESKTOP of https://specifications.freedesktop.org/wm-spec/latest/.
#include "platform/qt/x11/AllDesktops.h"

#include "platform/qt/x11/X11.h"

namespace zephrine {

void showOnAllDesktops(QWindow& window) {
    if (xcb_connection_t* const connection = x11Connection()) {
        constexpr std::uint32_t all = 0xffffffff;
        xcb_change_property(
            connection, XCB_PROP_MODE_REPLACE, static_cast<xcb_window_t>(window.winId()),
            internAtoms<1>(connection, {"_NET_WM_DESKTOP"})[0], XCB_ATOM_CARDINAL, 32, 1, &all);
    }
}

}  // namespace zephrine
