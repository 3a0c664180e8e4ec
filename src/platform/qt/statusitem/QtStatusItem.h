// SPDX-License-Identifier: MIT
// The status item: a place on the session bus of its own, the watch over the panel that shows it,
// what is seen of it, and the decision where that is.
#pragma once

#include <QDBusConnection>
#include <QObject>
#include <QString>
#include <QTimer>
#include <chrono>
#include <string>

#include "platform/StatusBar.h"
#include "platform/qt/statusitem/QtStatusItemButton.h"
#include "platform/qt/statusitem/host/HostWatcher.h"
#include "platform/qt/statusitem/host/SessionHostBus.h"
#include "platform/qt/statusitem/placement/ItemPlacement.h"

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

class QtStatusItem final : public QObject, public StatusItem {
public:
    /// The item leaves a panel that has been missing for `patience`.
    QtStatusItem(double length, const StatusItemServices& services, const QString& busAddress,
                 std::chrono::milliseconds patience);

    void setAutosaveName(const std::string& name) override;
    void setLength(double length) override;
    QtStatusItemButton* button() override { return &button_; }

private:
    /// Decides anew where the item stands, and has it done.
    void place();
    [[nodiscard]] PanelReport panelReport() const;

    ItemConnection connection_;
    QtStatusItemButton button_;
    SessionHostBus hostBus_;
    HostWatcher watcher_;
    std::chrono::milliseconds patience_;
    ItemPlacement placement_;
    QTimer due_;
};

}  // namespace zephrine
