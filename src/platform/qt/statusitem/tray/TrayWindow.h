// SPDX-License-Identifier: MIT
// The item's window inside a tray, from the request to be taken in until the tray lets it go.
// https://specifications.freedesktop.org/systemtray-spec and, for what happens inside the tray,
// https://specifications.freedesktop.org/xembed-spec.
#pragma once

#include <QImage>
#include <QRect>
#include <QSize>
#include <functional>
#include <optional>

#include "platform/StatusBar.h"
#include "platform/qt/statusitem/tray/TrayHints.h"
#include "platform/qt/x11/X11Client.h"

namespace zephrine {

class TrayWindow {
public:
    struct Handlers {
        std::function<void()> placed;  ///< taken in, or given another size
        std::function<void()> lost;    ///< the tray has let it go; destroy it, but not at once
        std::function<void()> clicked;
        std::function<void(bool)> hovered;  ///< whether the pointer has come, or gone
    };

    /// Asks `manager`, the tray's window, to take it in. `connection` outlives it.
    TrayWindow(X11Client& connection, xcb_window_t manager, const TrayHints& hints,
               Handlers handlers);
    ~TrayWindow();
    Q_DISABLE_COPY_MOVE(TrayWindow)

    /// Points from the left end to the right end, where the tray leaves it the choice.
    void setLength(double length);
    void setPicture(const StatusItemImage& image, double density);
    /// Events of other windows are ignored.
    void handle(const xcb_generic_event_t& event);

    [[nodiscard]] xcb_window_t id() const { return window_; }
    [[nodiscard]] QSize size() const { return size_; }
    /// How the tray behind the item looks; absent when it cannot be read.
    [[nodiscard]] std::optional<Appearance> surface() const;

private:
    void tellEmbedder();
    void requestDock(xcb_window_t manager);
    void askForSize();
    void handlePointer(const xcb_generic_event_t& event);
    void paint();
    [[nodiscard]] QImage picture() const;
    /// What is behind the window, read from the screen; null when it cannot be read.
    [[nodiscard]] const QImage& background();
    void reparented(xcb_window_t parent);
    void resized(QSize size);

    X11Client& connection_;
    TrayHints hints_;
    Handlers handlers_;
    xcb_window_t window_ = XCB_WINDOW_NONE;
    xcb_gcontext_t graphics_ = XCB_NONE;
    xcb_colormap_t colormap_ = XCB_NONE;
    double length_ = 0;
    StatusItemImage image_;
    double density_ = 1;
    QSize asked_;
    QSize size_{1, 1};
    QImage background_;
    QImage painted_;
    bool isDocked_ = false;
};

}  // namespace zephrine
