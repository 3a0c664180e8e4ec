// SPDX-License-Identifier: MIT
// X11 before Wayland, also in a Wayland session: only X11 lets a client place its own windows, and
// the popover has to stand beside the status item.
#include "platform/qt/DesktopConnection.h"

#include <sys/socket.h>
#include <xcb/xcb.h>

#include <QDir>
#include <QLibraryInfo>
#include <QString>

#include "platform/linux/base/UnixSocket.h"

namespace zephrine {

namespace {

bool hasPlugin(const QString& pattern) {
    const QDir folder(QLibraryInfo::path(QLibraryInfo::PluginsPath) + QStringLiteral("/platforms"));
    return !folder.entryList({pattern}, QDir::Files).isEmpty();
}

bool reachesXDisplay() {
    xcb_connection_t* connection = xcb_connect(nullptr, nullptr);
    const bool reached = xcb_connection_has_error(connection) == 0;
    xcb_disconnect(connection);
    return reached;
}

bool isListening(const QByteArray& socketPath) {
    return static_cast<bool>(connectToSocket(socketPath.toStdString(), SOCK_STREAM));
}

QByteArray waylandSocket() {
    const QByteArray name = qgetenv("WAYLAND_DISPLAY");
    return name.startsWith('/') ? name : qgetenv("XDG_RUNTIME_DIR") + '/' + name;
}

/// Whether a session bus can be had without libdbus starting one of its own.
bool hasSessionBus() {
    return !qEnvironmentVariableIsEmpty("DBUS_SESSION_BUS_ADDRESS") ||
           isListening(qgetenv("XDG_RUNTIME_DIR") + "/bus");
}

}  // namespace

std::variant<QByteArray, NoDesktop> findDesktop() {
    const QByteArray wanted = qgetenv("QT_QPA_PLATFORM").split(':').first();
    if (wanted == "offscreen" || wanted == "minimal") {
        return wanted;
    }
    const QByteArray display = qgetenv("DISPLAY");
    const QByteArray wayland = qgetenv("WAYLAND_DISPLAY");
    NoDesktop none{"no display: neither DISPLAY nor WAYLAND_DISPLAY is set"};
    if (!display.isEmpty()) {
        if (!reachesXDisplay()) {
            none.reason = "cannot connect to the X display \"" + display.toStdString() + "\"";
        } else if (hasPlugin(QStringLiteral("libqxcb*"))) {
            return QByteArray("xcb");
        } else {
            none.reason = "Qt's plug-in for X11 displays is not installed";
        }
    }
    if (!wayland.isEmpty()) {
        if (!isListening(waylandSocket())) {
            none.reason = "cannot connect to the Wayland display \"" + wayland.toStdString() + "\"";
        } else if (hasPlugin(QStringLiteral("libqwayland*"))) {
            return QByteArray("wayland");
        } else {
            none.reason = "Qt's plug-in for Wayland displays is not installed";
        }
    }
    return none;
}

void prepareEnvironment(const QByteArray& platform) {
    qputenv("QT_QPA_PLATFORM", platform);
    qunsetenv("QT_QPA_PLATFORMTHEME");
    qunsetenv("QT_STYLE_OVERRIDE");
    qunsetenv("SESSION_MANAGER");
    // Nothing here is drawn by OpenGL, and there is no text field to type into.
    qputenv("QT_XCB_GL_INTEGRATION", "none");
    qputenv("QT_WAYLAND_DISABLE_HW_INTEGRATION", "1");
    qputenv("QT_IM_MODULE", "none");
    if (!hasSessionBus()) {
        qputenv("DBUS_SESSION_BUS_ADDRESS", "disabled:");
    }
}

}  // namespace zephrine
