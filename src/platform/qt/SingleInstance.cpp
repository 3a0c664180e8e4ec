// SPDX-License-Identifier: MIT
// The well-known name on the session bus and the call to the program that owns it.
#include "platform/qt/SingleInstance.h"

#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <utility>

namespace zephrine {

namespace {

const QString busName = QStringLiteral("org.zephrine.Zephrine");
const QString objectPath = QStringLiteral("/org/zephrine/Zephrine");

/// False when the owner of the name does not answer in time.
bool activateOwner(const QDBusConnection& bus) {
    constexpr int patience = 3000;  // milliseconds
    QDBusMessage activate = QDBusMessage::createMethodCall(
        busName, objectPath, QStringLiteral("org.freedesktop.Application"),
        QStringLiteral("Activate"));
    activate << QVariantMap();
    return bus.call(activate, QDBus::BlockWithGui, patience).type() == QDBusMessage::ReplyMessage;
}

}  // namespace

SingleInstance::SingleInstance(QDBusConnection bus, std::function<void()> reopened)
    : bus_(std::move(bus)), reopened_(std::move(reopened)) {}

bool SingleInstance::claim() {
    if (!bus_.isConnected()) {
        return true;
    }
    bus_.registerObject(objectPath, this, QDBusConnection::ExportScriptableSlots);
    const auto reply =
        bus_.interface()->registerService(busName, QDBusConnectionInterface::DontQueueService,
                                          QDBusConnectionInterface::DontAllowReplacement);
    const bool taken = reply.isValid() && reply != QDBusConnectionInterface::ServiceRegistered;
    return !taken || !activateOwner(bus_);
}

void SingleInstance::Activate(const QVariantMap& /*platformData*/) {
    reopened_();
}

void SingleInstance::Open(const QStringList& /*uris*/, const QVariantMap& /*platformData*/) {
    reopened_();
}

void SingleInstance::ActivateAction(const QString& /*name*/, const QVariantList& /*parameter*/,
                                    const QVariantMap& /*platformData*/) {
    reopened_();
}

}  // namespace zephrine
