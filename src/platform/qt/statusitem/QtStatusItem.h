// SPDX-License-Identifier: MIT
// The status item: a place on the session bus of its own, what is seen of it, and the watch over
// the panel that shows it.
#pragma once

#include <QDBusConnection>
#include <QString>
#include <chrono>
#include <string>

#include "platform/StatusBar.h"
#include "platform/qt/statusitem/HostWatcher.h"
#include "platform/qt/statusitem/QtStatusItemButton.h"
#include "platform/qt/statusitem/SessionHostBus.h"
#include "platform/qt/statusitem/TimerDelay.h"

namespace zephrine {

/// A connection to the bus that nothing else uses: panels drop an item when its connection closes,
/// and have no other way to be told.
class ItemConnection {
public:
    /// Empty means the session's bus.
    explicit ItemConnection(const QString& address);
    ~ItemConnection();
    Q_DISABLE_COPY_MOVE(ItemConnection)

    [[nodiscard]] const QDBusConnection& bus() const { return bus_; }

private:
    QDBusConnection bus_;
};

class QtStatusItem final : public StatusItem {
public:
    QtStatusItem(double length, const StatusItemServices& services, const QString& busAddress,
                 std::chrono::milliseconds patience);

    void setAutosaveName(const std::string& name) override;
    void setLength(double length) override;
    QtStatusItemButton* button() override { return &button_; }

private:
    ItemConnection connection_;
    QtStatusItemButton button_;
    TimerDelay delay_;
    SessionHostBus hostBus_;
    HostWatcher watcher_;
};

}  // namespace zephrine
