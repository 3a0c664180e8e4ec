// SPDX-License-Identifier: MIT
// The parts of the item, put together.
#include "platform/qt/statusitem/QtStatusItem.h"

#include <cstdint>

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
      delay_(patience),
      hostBus_(connection_.bus()),
      watcher_(hostBus_, delay_, [this] {
          button_.hostChanged(watcher_);
          watcher_.setWanted(!button_.prefersTray());
      }) {
    button_.setPreferenceChanged([this] { watcher_.setWanted(!button_.prefersTray()); });
    setLength(length);
    hostBus_.start(watcher_);
}

void QtStatusItem::setAutosaveName(const std::string& name) {
    button_.strip().setPlaceName(name);
}

void QtStatusItem::setLength(double length) {
    button_.strip().setLength(length);
}

}  // namespace zephrine
