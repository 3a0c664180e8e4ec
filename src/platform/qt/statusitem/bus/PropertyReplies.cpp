// SPDX-License-Identifier: MIT
// https://dbus.freedesktop.org/doc/dbus-specification.html#standard-interfaces-properties
#include "platform/qt/statusitem/bus/PropertyReplies.h"

#include <QDBusError>
#include <QDBusVariant>

namespace zephrine {

namespace {

/// Callers may leave the interface empty: then any that has the property is meant.
bool isMeant(const QString& asked, const QString& interface) {
    return asked.isEmpty() || asked == interface;
}

QDBusMessage replyToGet(const QDBusMessage& call, const QString& interface,
                        const QVariantMap& properties) {
    const QString asked = call.arguments().at(0).toString();
    const QString name = call.arguments().at(1).toString();
    if (!isMeant(asked, interface)) {
        return call.createErrorReply(QDBusError::UnknownInterface, "No such interface");
    }
    const auto property = properties.find(name);
    if (property == properties.end()) {
        return call.createErrorReply(QDBusError::UnknownProperty, "No such property");
    }
    return call.createReply(QVariant::fromValue(QDBusVariant(*property)));
}

QDBusMessage replyToGetAll(const QDBusMessage& call, const QString& interface,
                           const QVariantMap& properties) {
    if (!isMeant(call.arguments().at(0).toString(), interface)) {
        return call.createErrorReply(QDBusError::UnknownInterface, "No such interface");
    }
    return call.createReply(properties);
}

}  // namespace

void answer(const QDBusConnection& bus, const QDBusMessage& call, const QDBusMessage& reply) {
    if (call.isReplyRequired()) {
        bus.send(reply);
    }
}

bool answerPropertyCall(const QDBusConnection& bus, const QDBusMessage& call,
                        const QString& interface, const QVariantMap& properties) {
    if (call.interface() != "org.freedesktop.DBus.Properties") {
        return false;
    }
    if (call.member() == "Get" && call.signature() == "ss") {
        answer(bus, call, replyToGet(call, interface, properties));
    } else if (call.member() == "GetAll" && call.signature() == "s") {
        answer(bus, call, replyToGetAll(call, interface, properties));
    } else if (call.member() == "Set" && call.signature() == "ssv") {
        answer(bus, call, call.createErrorReply(QDBusError::PropertyReadOnly, "Read only"));
    } else {
        answer(bus, call, call.createErrorReply(QDBusError::InvalidArgs, "Wrong arguments"));
    }
    return true;
}

}  // namespace zephrine
