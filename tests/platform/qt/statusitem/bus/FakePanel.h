// SPDX-License-Identifier: MIT
// A panel that takes items: the watcher and the host in one program, which counts what it is told
// and can be as unhelpful as real ones are.
#pragma once

#include <QDBusVirtualObject>
#include <QMap>
#include <QObject>
#include <QString>
#include <QStringList>
#include <QVariant>

#include "platform/qt/statusitem/bus/PrivateBus.h"

namespace zephrine {

class FakePanel final : public QDBusVirtualObject {
    Q_OBJECT

public:
    enum class Manner { helpful, refusing, silent };

    explicit FakePanel(const PrivateBus& bus, Manner manner = Manner::helpful);
    ~FakePanel() override;
    Q_DISABLE_COPY_MOVE(FakePanel)

    bool hasHost = true;
    QStringList registered;
    /// How often each signal of the item came.
    QMap<QString, int> signalCounts;

    void announceHost();
    QVariant property(const QString& name);
    QDBusMessage callItem(const QString& member, const QVariantList& arguments,
                          const QString& interface = "org.kde.StatusNotifierItem");
    QDBusMessage callMenu(const QString& member, const QVariantList& arguments = {},
                          const QString& interface = "com.canonical.dbusmenu");
    /// Waits until all that was sent to this panel so far has arrived.
    void settle();

    [[nodiscard]] QString introspect(const QString& path) const override;
    bool handleMessage(const QDBusMessage& message, const QDBusConnection& connection) override;

private:
    Q_SLOT void countSignal(const QDBusMessage& message);

    BusPeer peer_;
    Manner manner_;
};

}  // namespace zephrine
