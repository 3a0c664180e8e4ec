// SPDX-License-Identifier: MIT
#include "platform/qt/statusitem/bus/FakePanel.h"

#include <QDBusVariant>

#include "platform/qt/statusitem/bus/NotifierMenu.h"

namespace zephrine {

namespace {

constexpr const char* kName = "org.kde.StatusNotifierWatcher";
constexpr const char* kPath = "/StatusNotifierWatcher";
constexpr const char* kItemPath = "/StatusNotifierItem";
constexpr const char* kItem = "org.kde.StatusNotifierItem";
constexpr const char* kMenu = "com.canonical.dbusmenu";

}  // namespace

FakePanel::FakePanel(const PrivateBus& bus, Manner manner) : peer_(bus), manner_(manner) {
    peer_.bus().connect({}, kItemPath, kItem, {}, this, SLOT(countSignal(QDBusMessage)));
    peer_.bus().connect({}, NotifierMenu::kPath, kMenu, {}, this, SLOT(countSignal(QDBusMessage)));
    peer_.bus().registerVirtualObject(kPath, this);
    peer_.bus().registerService(kName);
}

FakePanel::~FakePanel() {
    peer_.bus().unregisterService(kName);
    peer_.bus().unregisterObject(kPath);
}

void FakePanel::announceHost() {
    peer_.bus().send(QDBusMessage::createSignal(kPath, kName, "StatusNotifierHostRegistered"));
}

QVariant FakePanel::property(const QString& name) {
    const QDBusMessage reply = callItem("Get", {kItem, name}, "org.freedesktop.DBus.Properties");
    return reply.type() == QDBusMessage::ReplyMessage
               ? reply.arguments().at(0).value<QDBusVariant>().variant()
               : QVariant();
}

QDBusMessage FakePanel::callItem(const QString& member, const QVariantList& arguments,
                                 const QString& interface) {
    return peer_.call(registered.value(0), kItemPath, interface, member, arguments);
}

QDBusMessage FakePanel::callMenu(const QString& member, const QVariantList& arguments,
                                 const QString& interface) {
    return peer_.call(registered.value(0), "/MenuBar", interface, member, arguments);
}

void FakePanel::settle() {
    // The bus keeps the order between two programs: after the answer nothing older is under way.
    property("Id");
    QCoreApplication::processEvents();
}

QString FakePanel::introspect(const QString& /*path*/) const {
    return {};
}

bool FakePanel::handleMessage(const QDBusMessage& message, const QDBusConnection& connection) {
    if (manner_ == Manner::silent) {
        return true;
    }
    if (manner_ == Manner::refusing) {
        return connection.send(message.createErrorReply(QDBusError::Failed, "Not today"));
    }
    if (message.member() == "RegisterStatusNotifierItem") {
        registered.append(message.arguments().at(0).toString());
        return connection.send(message.createReply());
    }
    if (message.member() == "Get") {
        return connection.send(message.createReply(QVariant::fromValue(QDBusVariant(hasHost))));
    }
    return false;
}

void FakePanel::countSignal(const QDBusMessage& message) {
    ++signalCounts[message.member()];
}

}  // namespace zephrine
