// SPDX-License-Identifier: MIT
// A tray is the owner of the selection _NET_SYSTEM_TRAY_Sn, and announces itself to the root window
// when it appears: https://specifications.freedesktop.org/systemtray-spec.
#include "platform/qt/statusitem/tray/TrayItem.h"

#include <QApplication>
#include <QCursor>
#include <QScreen>
#include <QStyle>
#include <QToolTip>
#include <array>
#include <string>
#include <utility>

#include "platform/qt/x11/X11.h"
#include "platform/qt/x11/X11Windows.h"

namespace zephrine {

TrayItem::TrayItem(const char* display)
    : display_(display),
      spoken_({.place = [this] { return place(); },
               .press =
                   [this] {
                       QMetaObject::invokeMethod(this, &TrayItem::pressed, Qt::QueuedConnection);
                   }}) {
    rest_.setSingleShot(true);
    rest_.setInterval(QApplication::style()->styleHint(QStyle::SH_ToolTip_WakeUpDelay));
    rest_.callOnTimeout([this] { QToolTip::showText(QCursor::pos(), toolTip_); });
}

void TrayItem::setWanted(bool wanted) {
    if (wanted == (connection_ != nullptr)) {
        return;
    }
    if (!wanted) {
        leaveTray();
        connection_.reset();
        return;
    }
    connection_ = std::make_unique<X11Client>(
        [this](const xcb_generic_event_t& event) { handle(event); }, display_);
    if (connection_->isOpen()) {
        const auto atoms = internAtoms<2>(connection_->get(), {"_NET_SYSTEM_TRAY_S0", "MANAGER"});
        selection_ = atoms[0];
        managerMessage_ = atoms[1];
        listen(connection_->get(), connection_->screen().root, XCB_EVENT_MASK_STRUCTURE_NOTIFY);
        findManager();
    }
}

void TrayItem::askAgain() {
    if (connection_ && connection_->isOpen()) {
        findManager();
    }
}

void TrayItem::setLength(double length) {
    length_ = length;
    if (window_) {
        window_->setLength(length);
    }
}

void TrayItem::setPicture(const StatusItemImage& image) {
    image_ = image;
    if (window_) {
        window_->setPicture(image_, density_);
    }
}

std::optional<QRect> TrayItem::place() const {
    return report_.state == TrayReport::State::holding
               ? placeOnScreen(window_->id(), window_->size())
               : std::nullopt;
}

std::optional<Appearance> TrayItem::surface() const {
    return report_.state == TrayReport::State::holding ? window_->surface() : std::nullopt;
}

void TrayItem::handle(const xcb_generic_event_t& event) {
    const int kind = event.response_type & 0x7f;
    if (kind == XCB_CLIENT_MESSAGE) {
        const auto& message = reinterpret_cast<const xcb_client_message_event_t&>(event);
        if (message.type == managerMessage_ && message.data.data32[1] == selection_) {
            findManager();
        }
    } else if (kind == XCB_DESTROY_NOTIFY &&
               reinterpret_cast<const xcb_destroy_notify_event_t&>(event).window == manager_) {
        leaveTray();
        findManager();
    } else if (kind == XCB_PROPERTY_NOTIFY &&
               reinterpret_cast<const xcb_property_notify_event_t&>(event).window == manager_) {
        // A panel that is moved to another edge turns its tray as well.
        if (hintsOfTray(connection_->get(), connection_->screen(), manager_) != hints_) {
            dockWith(manager_);
            connection_->flush();
        }
    } else if (window_) {
        window_->handle(event);
    }
}

void TrayItem::hovered(bool isOver) {
    if (isOver) {
        rest_.start();
    } else {
        rest_.stop();
        QToolTip::hideText();
    }
}

void TrayItem::pressed() {
    hovered(false);
    Q_EMIT clicked();
}

void TrayItem::findManager() {
    xcb_connection_t* const x = connection_->get();
    const auto owner =
        own(xcb_get_selection_owner_reply(x, xcb_get_selection_owner(x, selection_), nullptr));
    const xcb_window_t manager = owner ? owner->owner : xcb_window_t{XCB_WINDOW_NONE};
    if (manager != XCB_WINDOW_NONE && std::exchange(manager_, manager) != manager) {
        dockWith(manager);
    }
    connection_->flush();
}

void TrayItem::dockWith(xcb_window_t manager) {
    leaveTray();
    manager_ = manager;
    listen(connection_->get(), manager,
           XCB_EVENT_MASK_STRUCTURE_NOTIFY | XCB_EVENT_MASK_PROPERTY_CHANGE);
    hints_ = hintsOfTray(connection_->get(), connection_->screen(), manager);
    density_ = QGuiApplication::primaryScreen()->devicePixelRatio();
    if (!hints_) {
        return;
    }
    window_ = std::make_unique<TrayWindow>(
        *connection_, manager, *hints_,
        TrayWindow::Handlers{.placed = [this] { placed(); },
                             // It is in the middle of one of its own operations.
                             .lost =
                                 [this, docking = docking_] {
                                     QMetaObject::invokeMethod(
                                         this, [this, docking] { lost(docking); },
                                         Qt::QueuedConnection);
                                 },
                             .clicked = [this] { pressed(); },
                             .hovered = [this](bool isOver) { hovered(isOver); }});
    window_->setLength(length_);
    setPicture(image_);
    setState(TrayReport::State::asked);
}

void TrayItem::placed() {
    setState(TrayReport::State::holding);
    // The tray may stand on a screen of another density.
    const auto at = place();
    if (const auto* screen = at ? QGuiApplication::screenAt(at->center()) : nullptr) {
        density_ = screen->devicePixelRatio();
    }
    setPicture(image_);
    Q_EMIT placeChanged();
}

void TrayItem::lost(unsigned docking) {
    if (docking != docking_ || !connection_) {
        return;  // it stands in the next tray by now, or is to stand in none
    }
    ++report_.releases;
    leaveTray();
}

void TrayItem::leaveTray() {
    hovered(false);
    manager_ = XCB_WINDOW_NONE;
    window_.reset();
    ++docking_;
    setState(TrayReport::State::none);
}

void TrayItem::setState(TrayReport::State state) {
    if (std::exchange(report_.state, state) != state) {
        spoken_.setShown(state == TrayReport::State::holding);
        Q_EMIT reportChanged();
    }
}

}  // namespace zephrine
