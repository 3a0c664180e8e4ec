// SPDX-License-Identifier: MIT
#include "platform/qt/statusitem/QtStatusItem.h"

#include <algorithm>
#include <cstdint>

#include "platform/qt/statusitem/host/HostForm.h"
#include "platform/qt/x11/X11.h"

namespace zephrine {

namespace {

QDBusConnection open(const QString& address, std::uintptr_t owner) {
    const QString name = "zephrine-status-item-" + QString::number(owner);
    return address.isEmpty() ? QDBusConnection::connectToBus(QDBusConnection::SessionBus, name)
                             : QDBusConnection::connectToBus(address, name);
}

}  // namespace

ItemConnection::ItemConnection(const QString& address)
    : bus_(open(address, reinterpret_cast<std::uintptr_t>(this))) {}

ItemConnection::~ItemConnection() {
    QDBusConnection::disconnectFromBus(bus_.name());
}

QtStatusItem::QtStatusItem(double length, const StatusItemServices& services,
                           const QString& busAddress, std::chrono::milliseconds patience)
    : connection_(busAddress),
      button_(connection_.bus(), services),
      hostBus_(connection_.bus()),
      watcher_(hostBus_, [this] { place(); }),
      patience_(patience) {
    due_.setSingleShot(true);
    due_.callOnTimeout([this] { place(); });
    // Later, since the tray is in the middle of its own operations when it reports.
    connect(&button_.tray(), &TrayItem::reportChanged, this, &QtStatusItem::place,
            Qt::QueuedConnection);
    setLength(length);
    hostBus_.start(watcher_);
    place();
}

void QtStatusItem::setAutosaveName(const std::string& name) {
    button_.strip().setPlaceName(name);
}

void QtStatusItem::setLength(double length) {
    button_.setLength(length);
}

PanelReport QtStatusItem::panelReport() const {
    const auto& host = watcher_.process();
    return {.state = watcher_.state(),
            .isKnown = host.has_value(),
            .hasBetterTray = host && hasBetterTray(*host) && isOnX11()};
}

void QtStatusItem::place() {
    using Clock = std::chrono::steady_clock;
    placement_ =
        placeItem(placement_, panelReport(), button_.tray().report(), Clock::now(), patience_);
    watcher_.setOffered(placement_.offersToPanel);
    button_.tray().setWanted(placement_.wantsTray);
    if (placement_.asksTrayAgain) {
        button_.tray().askAgain();
    }
    if (placement_.due) {
        // Rounded up: a timer that fires too early would only have to be started again.
        const auto rest =
            std::chrono::ceil<std::chrono::milliseconds>(*placement_.due - Clock::now());
        due_.start(std::max(rest, std::chrono::milliseconds::zero()));
    } else {
        due_.stop();
    }
    button_.setSurface(placement_.surface, watcher_.process());
}

}  // namespace zephrine
