// SPDX-License-Identifier: MIT
// The few things that every conversation with the X server needs.
#pragma once

#include <xcb/xcb.h>

#include <QSize>
#include <array>
#include <cstdint>
#include <cstdlib>
#include <memory>
#include <string_view>
#include <vector>

namespace zephrine {

/// Qt's connection; null when the display is no X11 one.
[[nodiscard]] xcb_connection_t* x11Connection();

struct FreeReply {
    void operator()(void* reply) const { std::free(reply); }  // xcb's replies come from malloc
};

/// Takes over a reply of xcb; null stands for an error.
template <typename Reply>
std::unique_ptr<Reply, FreeReply> own(Reply* reply) {
    return std::unique_ptr<Reply, FreeReply>(reply);
}

/// In device pixels, as it is now; the connection's setup keeps the size of its own start. Empty
/// when the display is gone.
[[nodiscard]] QSize rootSize(xcb_connection_t* connection, xcb_window_t root);

/// Replaces the events that `connection` is sent of `window`.
inline void listen(xcb_connection_t* connection, xcb_window_t window, std::uint32_t events) {
    xcb_change_window_attributes(connection, window, XCB_CW_EVENT_MASK, &events);
}

/// The 32-bit words of the property that was asked for; empty when it has none.
[[nodiscard]] std::vector<std::uint32_t> propertyWords(xcb_connection_t* connection,
                                                       xcb_get_property_cookie_t asked);

/// Whether pictures of this depth have four bytes for a pixel, in this machine's order, as they
/// have on every desktop of today.
[[nodiscard]] bool hasPlainPixels(xcb_connection_t* connection, std::uint8_t depth);

/// Asks for all at once and waits once.
template <std::size_t count>
std::array<xcb_atom_t, count> internAtoms(xcb_connection_t* connection,
                                          const std::array<std::string_view, count>& names) {
    std::array<xcb_intern_atom_cookie_t, count> cookies{};
    for (std::size_t i = 0; i < count; ++i) {
        cookies[i] = xcb_intern_atom(connection, 0, static_cast<std::uint16_t>(names[i].size()),
                                     names[i].data());
    }
    std::array<xcb_atom_t, count> atoms{};
    for (std::size_t i = 0; i < count; ++i) {
        const auto reply = own(xcb_intern_atom_reply(connection, cookies[i], nullptr));
        atoms[i] = reply ? reply->atom : xcb_atom_t{XCB_ATOM_NONE};
    }
    return atoms;
}

/// Whether the session is one of X11. A Wayland session has an X server, too, which shows only some
/// of its windows.
[[nodiscard]] bool isOnX11();

}  // namespace zephrine
