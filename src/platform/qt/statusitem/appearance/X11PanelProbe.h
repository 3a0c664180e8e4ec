// SPDX-License-Identifier: MIT
// Looks at panels through X11: a panel is a window of the type "dock", or what the desktop draws
// beside the work area; what counts is what is on the screen there, whoever composed it.
#pragma once

#include <xcb/xcb.h>

#include <QRect>
#include <array>
#include <cstdint>
#include <vector>

#include "platform/qt/statusitem/appearance/PanelAppearance.h"

namespace zephrine {

class X11PanelProbe final : public PanelProbe {
public:
    /// Null means that the display is no X11 one: then there is never anything to be seen.
    explicit X11PanelProbe(xcb_connection_t* connection);

    [[nodiscard]] std::optional<Appearance> look(std::optional<pid_t> host) override;

private:
    struct Area {
        std::int16_t x;
        std::int16_t y;
        std::uint16_t width;
        std::uint16_t height;
    };
    enum Atom { clientList, windowType, dockType, windowPid, workAreas, atomCount };

    [[nodiscard]] xcb_get_property_cookie_t askProperty(xcb_window_t window, Atom name) const;
    [[nodiscard]] std::vector<xcb_window_t> rootChildren() const;
    [[nodiscard]] std::vector<xcb_window_t> docksAmong(
        const std::vector<xcb_window_t>& windows) const;
    [[nodiscard]] xcb_window_t findPanel(std::optional<pid_t> host) const;
    [[nodiscard]] std::optional<Area> visibleArea(xcb_window_t window) const;
    [[nodiscard]] std::optional<Area> areaOfDrawnPanel() const;
    [[nodiscard]] QSize screenSize() const;
    [[nodiscard]] std::optional<Area> areaOnScreen(const QRect& rect) const;
    [[nodiscard]] std::vector<std::uint32_t> pixelsAtEdges(const Area& area) const;

    xcb_connection_t* connection_;
    const xcb_screen_t* screen_ = nullptr;
    std::array<xcb_atom_t, atomCount> atoms_{};
    xcb_window_t panel_ = XCB_NONE;
    std::optional<pid_t> panelHost_;
};

}  // namespace zephrine
