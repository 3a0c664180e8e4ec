// SPDX-License-Identifier: MIT
// The item in a tray of X11, for desktops whose panel does not ask for items on the bus. Docks with
// each tray that turns up, and reports what becomes of it.
#pragma once

#include <QObject>
#include <QRect>
#include <QString>
#include <QTimer>
#include <memory>
#include <optional>

#include "platform/StatusBar.h"
#include "platform/qt/statusitem/placement/ItemPlacement.h"
#include "platform/qt/statusitem/tray/SpokenTrayItem.h"
#include "platform/qt/statusitem/tray/TrayHints.h"
#include "platform/qt/statusitem/tray/TrayWindow.h"
#include "platform/qt/x11/X11Client.h"

namespace zephrine {

class TrayItem final : public QObject {
    Q_OBJECT

public:
    /// Looks for trays on `display`, or on the one that Qt is on when that is null.
    explicit TrayItem(const char* display = nullptr);

    /// Whether the item should stand in a tray at all; it does not at first.
    void setWanted(bool wanted);
    /// Asks the tray that has let the item go, if it is still there, to take it in again.
    void askAgain();
    [[nodiscard]] const TrayReport& report() const { return report_; }
    /// Points from the left end to the right end, where the tray leaves it the choice.
    void setLength(double length);
    void setPicture(const StatusItemImage& image);
    /// Shown beside the item while the pointer rests on it.
    void setToolTip(const QString& text) { toolTip_ = text; }
    /// What a screen reader says of it.
    void setAccessibilityLabel(const QString& text) { spoken_.setName(text); }
    /// In global logical coordinates; absent while it is not docked.
    [[nodiscard]] std::optional<QRect> place() const;

    /// How the tray behind the item looks; absent when it cannot be told.
    [[nodiscard]] std::optional<Appearance> surface() const;

    Q_SIGNAL void reportChanged();
    Q_SIGNAL void placeChanged();
    Q_SIGNAL void clicked();

private:
    void handle(const xcb_generic_event_t& event);
    void hovered(bool isOver);
    void pressed();
    void findManager();
    void dockWith(xcb_window_t manager);
    void placed();
    void lost(unsigned docking);
    void leaveTray();
    void setState(TrayReport::State state);

    const char* display_;
    std::unique_ptr<X11Client> connection_;  // only while it is wanted
    xcb_atom_t selection_ = XCB_ATOM_NONE;
    xcb_atom_t managerMessage_ = XCB_ATOM_NONE;
    xcb_window_t manager_ = XCB_WINDOW_NONE;
    std::optional<TrayHints> hints_;  ///< the manager's
    std::unique_ptr<TrayWindow> window_;
    unsigned docking_ =
        0;                ///< the number of the window, which tells its news from those of another
    double density_ = 1;  ///< device pixels per point on the screen of the tray
    QTimer rest_;         ///< of the pointer, until the tip is shown
    QString toolTip_;
    double length_ = 0;
    StatusItemImage image_;
    TrayReport report_;
    SpokenTrayItem spoken_;  // asks the others where they are
};

}  // namespace zephrine
