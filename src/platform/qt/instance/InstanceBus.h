// SPDX-License-Identifier: MIT
// Instances that meet on the session bus: org.freedesktop.Application, as the Desktop Entry
// Specification has it ("D-Bus Activation"). An action is named like its launch option.
#pragma once

#include <QDBusConnection>
#include <QObject>
#include <QString>
#include <QStringList>
#include <QVariantMap>
#include <string>

#include "platform/qt/instance/Handover.h"

namespace zephrine {

/// Asks the owner of `name`. Needs no application object.
Handover handOverBus(const QDBusConnection& bus, const std::string& name,
                     const HandedOptions& options);

class InstanceBus final : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Application")

public:
    InstanceBus(QDBusConnection bus, HandoverReceiver receiver);

    /// Offers the interface; true when `name` is this instance's from now on. The shared name
    /// goes to one of the instances, and to the next when that one ends.
    [[nodiscard]] bool claim(const std::string& name, const std::string& sharedName);

    Q_SCRIPTABLE Q_SLOT void Activate(const QVariantMap& platformData);
    Q_SCRIPTABLE Q_SLOT void Open(const QStringList& uris, const QVariantMap& platformData);
    /// An action that does not exist does nothing.
    Q_SCRIPTABLE Q_SLOT void ActivateAction(const QString& name, const QVariantList& parameter,
                                            const QVariantMap& platformData);

private:
    QDBusConnection bus_;
    HandoverReceiver receiver_;
};

}  // namespace zephrine
