// SPDX-License-Identifier: MIT
// Answers org.freedesktop.DBus.Properties for an object that has one interface and lets nobody
// write.
#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QString>
#include <QVariantMap>

namespace zephrine {

/// Sends `reply` unless the caller said that it wants none.
void answer(const QDBusConnection& bus, const QDBusMessage& call, const QDBusMessage& reply);

/// Answers `call` when it is one about properties; false when it is about anything else.
bool answerPropertyCall(const QDBusConnection& bus, const QDBusMessage& call,
                        const QString& interface, const QVariantMap& properties);

}  // namespace zephrine
