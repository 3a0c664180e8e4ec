// SPDX-License-Identifier: MIT
// The connection, from Qt.
#include "platform/qt/statusitem/X11.h"

#include <QGuiApplication>

namespace zephrine {

xcb_connection_t* x11Connection() {
    const auto* const x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    return x11 == nullptr ? nullptr : x11->connection();
}

}  // namespace zephrine
