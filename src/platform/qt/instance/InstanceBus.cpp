// SPDX-License-Identifier: MIT
#include "platform/qt/instance/InstanceBus.h"

#include <QCoreApplication>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <utility>

namespace zephrine {

namespace {

const QString objectPath = QStringLiteral("/org/zephrine/Zephrine");
const QString interface = QStringLiteral("org.freedesktop.Application");
constexpr std::string_view dashes = "--";

Handover call(const QDBusConnection& bus, const std::string& name, const QString& method,
              const QVariantList& arguments) {
    QDBusMessage request =
        QDBusMessage::createMethodCall(QString::fromStdString(name), objectPath, interface, method);
    request.setArguments(arguments);
    request.setAutoStartService(false);
    const auto mode = QCoreApplication::instance() == nullptr ? QDBus::Block : QDBus::BlockWithGui;
    const QDBusMessage reply = bus.call(request, mode, static_cast<int>(handoverPatience.count()));
    if (reply.type() == QDBusMessage::ReplyMessage) {
        return Handover::done;
    }
    const bool nobody =
        reply.errorName() == QStringLiteral("org.freedesktop.DBus.Error.ServiceUnknown") ||
        reply.errorName() == QStringLiteral("org.freedesktop.DBus.Error.NameHasNoOwner");
    return nobody ? Handover::nobody : Handover::silent;
}

}  // namespace

Handover handOverBus(const QDBusConnection& bus, const std::string& name,
                     const HandedOptions& options) {
    if (options.empty()) {
        return call(bus, name, QStringLiteral("Activate"), {QVariantMap()});
    }
    Handover result = Handover::done;
    for (auto option = options.begin(); option != options.end() && result == Handover::done;
         ++option) {
        const std::string_view action = wordOf(*option).substr(dashes.size());
        result = call(bus, name, QStringLiteral("ActivateAction"),
                      {QString::fromUtf8(action.data(), static_cast<qsizetype>(action.size())),
                       QVariantList(), QVariantMap()});
    }
    return result;
}

InstanceBus::InstanceBus(QDBusConnection bus, HandoverReceiver receiver)
    : bus_(std::move(bus)), receiver_(std::move(receiver)) {}

bool InstanceBus::claim(const std::string& name, const std::string& sharedName) {
    // First the object, then the name: who finds the name may call at once.
    bus_.registerObject(objectPath, this, QDBusConnection::ExportScriptableSlots);
    const auto reply = bus_.interface()->registerService(
        QString::fromStdString(name), QDBusConnectionInterface::DontQueueService,
        QDBusConnectionInterface::DontAllowReplacement);
    if (!reply.isValid() || reply != QDBusConnectionInterface::ServiceRegistered) {
        return false;
    }
    bus_.interface()->registerService(QString::fromStdString(sharedName),
                                      QDBusConnectionInterface::QueueService,
                                      QDBusConnectionInterface::DontAllowReplacement);
    return true;
}

void InstanceBus::Activate(const QVariantMap& /*platformData*/) {
    receiver_(std::nullopt);
}

void InstanceBus::Open(const QStringList& /*uris*/, const QVariantMap& /*platformData*/) {
    receiver_(std::nullopt);
}

void InstanceBus::ActivateAction(const QString& name, const QVariantList& /*parameter*/,
                                 const QVariantMap& /*platformData*/) {
    if (const auto option = launchOptionOf(std::string(dashes) + name.toStdString())) {
        receiver_(option);
    }
}

}  // namespace zephrine
