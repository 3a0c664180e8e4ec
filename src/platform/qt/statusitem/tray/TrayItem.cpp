// SPDX-License-Identifier: MIT
// A tray is the owner of the selection _NET_SYSTEM_TRAY_Sn, and announces itself to the root window
// when it appears: https://specifications.freedesktop.org/systemtray-spec.
#include "platform/qt/statusitem/tray/TrayItem.h"

#include <QApplication>
#include <QCursor>
#include <QScreen>
#include <QStyle>
#include <QToolTip>
#include <algorithm>
#include <array>
#include <chrono>
#include <string>
#include <utility>

#include "platform/qt/windows/X11Windows.h"
#include "platform/qt/x11/X11.h"

namespace zephrine {

namespace {

// For a tray that was asked to take the item in, or to come back after it has gone.
constexpr std::chrono::seconds kPatience{3};
// Before a tray is asked again that has put the item out. Some do so while they make their own
// window anew. One that does not want the item is asked ever more seldom: each pause is twice the
// last one, until the item has stood in a tray for a while.
constexpr std::chrono::milliseconds kPause{500};
constexpr std::chrono::milliseconds kLongestPause{64000};
constexpr std::chrono::milliseconds kWhile{10000};

}  // namespace

TrayItem::TrayItem()
    : nextPause_(kPause),
      spoken_({.place = [this] { return place(); },
               .press =
                   [this] {
                       QMetaObject::invokeMethod(this, &TrayItem::pressed, Qt::QueuedConnection);
                   }}) {
    patience_.setSingleShot(true);
    patience_.setInterval(kPatience);
    patience_.callOnTimeout([this] { setPresence(Presence::absent); });
    pause_.setSingleShot(true);
    pause_.callOnTimeout([this] { findManager(); });
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
        manager_ = XCB_WINDOW_NONE;
        connection_.reset();
        patience_.stop();
        pause_.stop();
        setPresence(Presence::absent);
        return;
    }
    connection_ =
        std::make_unique<X11Client>([this](const xcb_generic_event_t& event) { handle(event); });
    if (connection_->isOpen()) {
        const auto atoms = internAtoms<2>(connection_->get(), {"_NET_SYSTEM_TRAY_S0", "MANAGER"});
        selection_ = atoms[0];
        managerMessage_ = atoms[1];
        listen(connection_->get(), connection_->screen().root, XCB_EVENT_MASK_STRUCTURE_NOTIFY);
        findManager();
    }
}

void TrayItem::expectTray() {
    setWanted(true);
    if (presence_ == Presence::absent) {
        patience_.start();
        setPresence(Presence::unknown);
    }
}

void TrayItem::setLength(double length) {
    length_ = length;
    if (window_) {
        window_->setLength(length);
    }
}

void TrayItem::setPicture(const StatusItemImage& image, Appearance appearance) {
    image_ = image;
    appearance_ = appearance;
    if (window_) {
        window_->setPicture(image_, appearance_, density_);
    }
}

std::optional<QRect> TrayItem::place() const {
    return presence_ == Presence::docked ? placeOnScreen(window_->id(), window_->size())
                                         : std::nullopt;
}

std::optional<Appearance> TrayItem::surface() const {
    return presence_ == Presence::docked ? window_->surface() : std::nullopt;
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
    if (presence_ == Presence::absent) {
        setPresence(Presence::unknown);
    }
    patience_.start();
    window_ = std::make_unique<TrayWindow>(
        *connection_, manager, *hints_,
        TrayWindow::Handlers{.placed = [this] { placed(); },
                             // It is in the middle of one of its own operations.
                             .lost =
                                 [this, docking = ++docking_] {
                                     QMetaObject::invokeMethod(
                                         this, [this, docking] { lost(docking); },
                                         Qt::QueuedConnection);
                                 },
                             .clicked = [this] { pressed(); },
                             .hovered = [this](bool isOver) { hovered(isOver); }});
    window_->setLength(length_);
    setPicture(image_, appearance_);
}

void TrayItem::placed() {
    patience_.stop();
    if (presence_ != Presence::docked) {
        docked_.start();
        setPresence(Presence::docked);
    }
    // The tray may stand on a screen of another density.
    const auto at = place();
    if (const auto* screen = at ? QGuiApplication::screenAt(at->center()) : nullptr) {
        density_ = screen->devicePixelRatio();
    }
    setPicture(image_, appearance_);
    Q_EMIT placeChanged();
}

void TrayItem::lost(unsigned docking) {
    if (docking != docking_ || !connection_) {
        return;  // it stands in the next tray by now, or is to stand in none
    }
    leaveTray();
    const bool hasStoodAWhile = docked_.isValid() && docked_.hasExpired(kWhile.count());
    docked_.invalidate();  // the next tray may not even give it a place
    pause_.start(hasStoodAWhile ? kPause : nextPause_);
    nextPause_ = std::min(2 * pause_.intervalAsDuration(), kLongestPause);
}

void TrayItem::leaveTray() {
    hovered(false);
    manager_ = XCB_WINDOW_NONE;
    window_.reset();
    if (presence_ == Presence::docked) {
        setPresence(Presence::unknown);
        patience_.start();
    }
}

void TrayItem::setPresence(Presence presence) {
    if (std::exchange(presence_, presence) != presence) {
        spoken_.setShown(presence == Presence::docked);
        Q_EMIT presenceChanged();
    }
}

}  // namespace zephrine
