// SPDX-License-Identifier: MIT
// Reads by replies only, so that a window that vanishes in between is an absent answer and no
// error. Names of properties: https://specifications.freedesktop.org/wm-spec/latest/.
#include "platform/qt/statusitem/appearance/X11PanelProbe.h"

#include <QGuiApplication>
#include <QScreen>
#include <algorithm>
#include <cstring>
#include <utility>

#include "platform/linux/processes/ProcessFacts.h"
#include "platform/qt/statusitem/appearance/DrawnPanel.h"
#include "platform/qt/statusitem/appearance/PanelPixels.h"
#include "platform/qt/x11/ScreenScale.h"
#include "platform/qt/x11/X11.h"

namespace zephrine {

namespace {

constexpr std::uint32_t kMostWords = 4096;  // of one property: more windows than anybody has
constexpr int kInset = 2;  // pixels: past a panel's border line, short of its icons and texts

}  // namespace

X11PanelProbe::X11PanelProbe(xcb_connection_t* connection) : connection_(connection) {
    if (connection_ == nullptr) {
        return;
    }
    screen_ = xcb_setup_roots_iterator(xcb_get_setup(connection_)).data;
    atoms_ = internAtoms<atomCount>(
        connection_, {"_NET_CLIENT_LIST", "_NET_WM_WINDOW_TYPE", "_NET_WM_WINDOW_TYPE_DOCK",
                      "_NET_WM_PID", "_GTK_WORKAREAS_D0"});
}

std::optional<Appearance> X11PanelProbe::look(std::optional<pid_t> host) {
    if (connection_ == nullptr || !hasPlainPixels(connection_, screen_->root_depth)) {
        return std::nullopt;
    }
    auto area = host == panelHost_ ? visibleArea(panel_) : std::nullopt;
    if (!area) {
        panel_ = findPanel(host);
        panelHost_ = host;
        area = visibleArea(panel_);
    }
    if (!area) {
        area = areaOfDrawnPanel();
    }
    return area ? appearanceOfPixels(pixelsAtEdges(*area)) : std::nullopt;
}

xcb_get_property_cookie_t X11PanelProbe::askProperty(xcb_window_t window, Atom name) const {
    return xcb_get_property(connection_, 0, window, atoms_[name], XCB_GET_PROPERTY_TYPE_ANY, 0,
                            kMostWords);
}

std::vector<xcb_window_t> X11PanelProbe::rootChildren() const {
    const auto reply =
        own(xcb_query_tree_reply(connection_, xcb_query_tree(connection_, screen_->root), nullptr));
    if (!reply) {
        return {};
    }
    const xcb_window_t* const children = xcb_query_tree_children(reply.get());
    return {children, children + reply->children_len};
}

std::vector<xcb_window_t> X11PanelProbe::docksAmong(
    const std::vector<xcb_window_t>& windows) const {
    std::vector<xcb_get_property_cookie_t> cookies;
    cookies.reserve(windows.size());
    for (const xcb_window_t window : windows) {
        cookies.push_back(askProperty(window, windowType));
    }
    std::vector<xcb_window_t> docks;
    for (std::size_t i = 0; i < windows.size(); ++i) {
        const auto types = propertyWords(connection_, cookies[i]);
        if (std::find(types.begin(), types.end(), atoms_[dockType]) != types.end()) {
            docks.push_back(windows[i]);
        }
    }
    return docks;
}

xcb_window_t X11PanelProbe::findPanel(std::optional<pid_t> host) const {
    auto docks = docksAmong(propertyWords(connection_, askProperty(screen_->root, clientList)));
    if (docks.empty()) {
        docks = docksAmong(rootChildren());  // no window manager, or it does not list docks
    }
    std::erase_if(docks, [&](xcb_window_t dock) { return !visibleArea(dock); });
    const auto parent = host ? parentOf(*host) : std::nullopt;
    xcb_window_t best = docks.empty() ? xcb_window_t{XCB_NONE} : docks.front();
    for (const xcb_window_t dock : docks) {
        const auto pid = propertyWords(connection_, askProperty(dock, windowPid));
        const auto isOf = [&](std::optional<pid_t> process) {
            return process && pid.size() == 1 && std::cmp_equal(pid.front(), *process);
        };
        if (isOf(host)) {
            return dock;
        }
        // A panel may run the part that shows the items in a process of its own.
        if (isOf(parent)) {
            best = dock;
        }
    }
    return best;
}

std::optional<X11PanelProbe::Area> X11PanelProbe::visibleArea(xcb_window_t window) const {
    if (window == XCB_NONE) {
        return std::nullopt;
    }
    const auto askAttributes = xcb_get_window_attributes(connection_, window);
    const auto askGeometry = xcb_get_geometry(connection_, window);
    const auto askOrigin = xcb_translate_coordinates(connection_, window, screen_->root, 0, 0);
    const auto attributes =
        own(xcb_get_window_attributes_reply(connection_, askAttributes, nullptr));
    const auto geometry = own(xcb_get_geometry_reply(connection_, askGeometry, nullptr));
    const auto origin = own(xcb_translate_coordinates_reply(connection_, askOrigin, nullptr));
    if (!attributes || !geometry || !origin || attributes->map_state != XCB_MAP_STATE_VIEWABLE) {
        return std::nullopt;
    }
    return areaOnScreen({origin->dst_x, origin->dst_y, geometry->width, geometry->height});
}

std::optional<X11PanelProbe::Area> X11PanelProbe::areaOfDrawnPanel() const {
    const QScreen* const monitor = QGuiApplication::primaryScreen();
    if (monitor == nullptr) {
        return std::nullopt;
    }
    const auto strip =
        drawnPanel(ScreenScale(*monitor).pixels() & QRect(QPoint(), screenSize()),
                   propertyWords(connection_, askProperty(screen_->root, workAreas)));
    return strip ? areaOnScreen(*strip) : std::nullopt;
}

QSize X11PanelProbe::screenSize() const {
    return rootSize(connection_, screen_->root);
}

std::optional<X11PanelProbe::Area> X11PanelProbe::areaOnScreen(const QRect& rect) const {
    const QRect part = rect & QRect(QPoint(), screenSize());
    // What a hidden panel leaves at the edge is too little to be looked at.
    if (part.width() <= 2 * kInset || part.height() <= 2 * kInset) {
        return std::nullopt;
    }
    return Area{static_cast<std::int16_t>(part.x()), static_cast<std::int16_t>(part.y()),
                static_cast<std::uint16_t>(part.width()),
                static_cast<std::uint16_t>(part.height())};
}

std::vector<std::uint32_t> X11PanelProbe::pixelsAtEdges(const Area& area) const {
    Area first = area;
    Area second = area;
    if (area.width >= area.height) {
        first.height = second.height = 1;
        first.y = static_cast<std::int16_t>(area.y + kInset);
        second.y = static_cast<std::int16_t>(area.y + area.height - 1 - kInset);
    } else {
        first.width = second.width = 1;
        first.x = static_cast<std::int16_t>(area.x + kInset);
        second.x = static_cast<std::int16_t>(area.x + area.width - 1 - kInset);
    }
    const auto ask = [&](const Area& line) {
        return xcb_get_image(connection_, XCB_IMAGE_FORMAT_Z_PIXMAP, screen_->root, line.x, line.y,
                             line.width, line.height, ~0U);
    };
    std::vector<std::uint32_t> pixels;
    for (const auto cookie : {ask(first), ask(second)}) {
        const auto reply = own(xcb_get_image_reply(connection_, cookie, nullptr));
        if (reply) {
            const std::size_t have = pixels.size();
            pixels.resize(have + static_cast<std::size_t>(xcb_get_image_data_length(reply.get())) /
                                     sizeof(std::uint32_t));
            std::memcpy(pixels.data() + have, xcb_get_image_data(reply.get()),
                        (pixels.size() - have) * sizeof(std::uint32_t));
        }
    }
    return pixels;
}

}  // namespace zephrine
