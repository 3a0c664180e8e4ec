// SPDX-License-Identifier: MIT
// The few things that every conversation with the X server needs.
#pragma once

#include <xcb/xcb.h>

#include <array>
#include <cstdint>
#include <cstdlib>
#include <memory>
#include <string_view>

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

}  // namespace zephrine
