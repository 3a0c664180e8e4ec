// SPDX-License-Identifier: MIT
// Reads by replies only, so that a window that vanishes in between is an absent answer and no
// error.
#include "platform/qt/x11/X11.h"

#include <QGuiApplication>
#include <bit>

namespace zephrine {

xcb_connection_t* x11Connection() {
    const auto* const x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    return x11 == nullptr ? nullptr : x11->connection();
}

QSize rootSize(xcb_connection_t* connection, xcb_window_t root) {
    const auto reply =
        own(xcb_get_geometry_reply(connection, xcb_get_geometry(connection, root), nullptr));
    return reply ? QSize(reply->width, reply->height) : QSize(0, 0);
}

std::vector<std::uint32_t> propertyWords(xcb_connection_t* connection,
                                         xcb_get_property_cookie_t asked) {
    const auto reply = own(xcb_get_property_reply(connection, asked, nullptr));
    if (!reply || reply->format != 32) {
        return {};
    }
    const auto* const words =
        static_cast<const std::uint32_t*>(xcb_get_property_value(reply.get()));
    return {words, words + reply->value_len};
}

bool hasPlainPixels(xcb_connection_t* connection, std::uint8_t depth) {
    const xcb_setup_t* const setup = xcb_get_setup(connection);
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

bool isOnX11() {
    return x11Connection() != nullptr && !qEnvironmentVariableIsSet("WAYLAND_DISPLAY");
}

}  // namespace zephrine
