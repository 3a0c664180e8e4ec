// SPDX-License-Identifier: MIT
// Extended Window Manager Hints, https://specifications.freedesktop.org/wm-spec/latest/. What
// other clients have written there is checked before it is believed.
#include "platform/qt/x11/X11Windows.h"

#include <QGuiApplication>
#include <QScreen>
#include <algorithm>
#include <array>
#include <cstdint>
#include <cstring>
#include <span>
#include <string_view>

#include "platform/qt/x11/ScreenScale.h"
#include "platform/qt/x11/X11.h"

namespace zephrine {

namespace {

xcb_atom_t atom(xcb_connection_t* connection, std::string_view name) {
    return internAtoms(connection, std::array{name})[0];
}

/// The first screen: the only one that desktops have used since monitors share one.
const xcb_screen_t& screenOf(xcb_connection_t* connection) {
    return *xcb_setup_roots_iterator(xcb_get_setup(connection)).data;
}

xcb_get_property_cookie_t ask(xcb_connection_t* connection, xcb_window_t window,
                              xcb_atom_t property, xcb_atom_t type, std::uint32_t words) {
    return xcb_get_property(connection, 0, window, property, type, 0, words);
}

std::optional<Strut> strutFrom(std::span<const std::uint32_t> words, QSize root) {
    if (words.size() != 12) {
        return std::nullopt;
    }
    std::array<int, 12> numbers{};
    for (std::size_t index = 0; index < numbers.size(); ++index) {
        const auto limit = static_cast<std::uint32_t>(std::max(root.width(), root.height()));
        if (words[index] > limit) {
            return std::nullopt;
        }
        numbers[index] = static_cast<int>(words[index]);
    }
    const auto [left, right, top, bottom, leftStart, leftEnd, rightStart, rightEnd, topStart,
                topEnd, bottomStart, bottomEnd] = numbers;
    return Strut{left,       right,    top,      bottom, leftStart,   leftEnd,
                 rightStart, rightEnd, topStart, topEnd, bottomStart, bottomEnd};
}

QRect logicalRect(const QRect& onRoot) {
    const auto screens = QGuiApplication::screens();
    for (const QScreen* screen : screens) {
        const ScreenScale scale(*screen);
        if (scale.pixels().contains(onRoot.topLeft())) {
            return scale.toPoints(onRoot);
        }
    }
    return onRoot;
}

void sendToRoot(xcb_connection_t* connection, xcb_window_t window, xcb_atom_t type,
                const std::array<std::uint32_t, 5>& data) {
    xcb_client_message_event_t event{};
    event.response_type = XCB_CLIENT_MESSAGE;
    event.format = 32;
    event.window = window;
    event.type = type;
    std::memcpy(event.data.data32, data.data(), sizeof event.data.data32);
    std::array<char, sizeof event> bytes{};
    std::memcpy(bytes.data(), &event, sizeof event);
    xcb_send_event(connection, 0, screenOf(connection).root,
                   XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT | XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY,
                   bytes.data());
    xcb_flush(connection);
}

}  // namespace

bool isComposited() {
    xcb_connection_t* connection = x11Connection();
    if (connection == nullptr) {
        return QGuiApplication::platformName().startsWith(QStringLiteral("wayland"));
    }
    const auto cookie = xcb_get_selection_owner(connection, atom(connection, "_NET_WM_CM_S0"));
    const auto reply = own(xcb_get_selection_owner_reply(connection, cookie, nullptr));
    return reply && reply->owner != XCB_WINDOW_NONE;
}

std::optional<X11Panels> x11Panels() {
    xcb_connection_t* connection = x11Connection();
    if (connection == nullptr) {
        return std::nullopt;
    }
    constexpr std::uint32_t mostWindows = 4096;
    const xcb_screen_t& screen = screenOf(connection);
    X11Panels panels{rootSize(connection, screen.root), {}};
    const auto windows =
        propertyWords(connection, ask(connection, screen.root, atom(connection, "_NET_CLIENT_LIST"),
                                      XCB_ATOM_WINDOW, mostWindows));
    const xcb_atom_t partial = atom(connection, "_NET_WM_STRUT_PARTIAL");
    std::vector<xcb_get_property_cookie_t> cookies;  // all asked before the first is answered
    cookies.reserve(windows.size());
    for (const xcb_window_t window : windows) {
        cookies.push_back(ask(connection, window, partial, XCB_ATOM_CARDINAL, 12));
    }
    for (const auto cookie : cookies) {
        if (const auto strut = strutFrom(propertyWords(connection, cookie), panels.root)) {
            panels.struts.push_back(*strut);
        }
    }
    return panels;
}

QRect placeOnScreen(const QWidget& window) {
    xcb_connection_t* connection = x11Connection();
    const QWindow* handle = window.windowHandle();
    if (connection == nullptr || handle == nullptr || handle->handle() == nullptr) {
        return window.geometry();
    }
    const auto place = placeOnScreen(static_cast<xcb_window_t>(handle->winId()), {});
    return place ? QRect(place->topLeft(), window.size()) : window.geometry();
}

std::optional<QRect> placeOnScreen(std::uint32_t window, QSize size) {
    xcb_connection_t* connection = x11Connection();
    if (connection == nullptr) {
        return std::nullopt;
    }
    const auto cookie =
        xcb_translate_coordinates(connection, window, screenOf(connection).root, 0, 0);
    const auto reply = own(xcb_translate_coordinates_reply(connection, cookie, nullptr));
    return reply ? std::optional(logicalRect({{reply->dst_x, reply->dst_y}, size})) : std::nullopt;
}

QRect pixelRect(const QRect& place) {
    const QScreen* screen = QGuiApplication::screenAt(place.center());
    if (screen == nullptr) {
        screen = QGuiApplication::primaryScreen();
    }
    return ScreenScale(*screen).toPixels(place);
}

void activateAsPager(QWindow& window) {
    if (xcb_connection_t* connection = x11Connection()) {
        constexpr std::uint32_t fromPager = 2;
        sendToRoot(connection, static_cast<xcb_window_t>(window.winId()),
                   atom(connection, "_NET_ACTIVE_WINDOW"),
                   {fromPager, XCB_CURRENT_TIME, XCB_WINDOW_NONE, 0, 0});
    }
}

void keepOutOfTaskBar(QWindow& window) {
    if (xcb_connection_t* connection = x11Connection()) {
        const std::array<xcb_atom_t, 2> states{atom(connection, "_NET_WM_STATE_SKIP_TASKBAR"),
                                               atom(connection, "_NET_WM_STATE_SKIP_PAGER")};
        xcb_change_property(
            connection, XCB_PROP_MODE_APPEND, static_cast<xcb_window_t>(window.winId()),
            atom(connection, "_NET_WM_STATE"), XCB_ATOM_ATOM, 32, states.size(), states.data());
    }
}

}  // namespace zephrine
