// SPDX-License-Identifier: MIT
// Calls to the watcher go to the unique name that was found to own its well-known one: that way
// they can start no other watcher, and answers from a former owner are told apart.
#include "platform/qt/statusitem/host/SessionHostBus.h"

#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusVariant>
#include <string_view>
#include <utility>

#include "platform/linux/processes/ProcessFacts.h"
#include "platform/qt/statusitem/host/HostWatcher.h"

namespace zephrine {

namespace {

constexpr const char* kWatcherName = "org.kde.StatusNotifierWatcher";
constexpr const char* kWatcherPath = "/StatusNotifierWatcher";
constexpr const char* kBusName = "org.freedesktop.DBus";
constexpr const char* kBusPath = "/org/freedesktop/DBus";
constexpr std::string_view kGNOMEShell = "gnome-shell";

/// The answer's one value; absent in an error and in an answer of another kind.
template <typename Value>
std::optional<Value> valueOf(const QDBusMessage& reply) {
    if (reply.type() != QDBusMessage::ReplyMessage || reply.arguments().size() != 1) {
        return std::nullopt;
    }
    QVariant value = reply.arguments().first();
    if (value.metaType() == QMetaType::fromType<QDBusVariant>()) {
        value = value.value<QDBusVariant>().variant();
    }
    return value.metaType() == QMetaType::fromType<Value>() ? std::optional(value.value<Value>())
                                                            : std::nullopt;
}

}  // namespace

SessionHostBus::SessionHostBus(QDBusConnection bus) : bus_(std::move(bus)) {}

void SessionHostBus::start(HostWatcher& watcher) {
    watcher_ = &watcher;
    watcher.start(bus_.isConnected());
    if (!bus_.isConnected()) {
        return;
    }
    nameWatcher_.setConnection(bus_);
    nameWatcher_.setWatchMode(QDBusServiceWatcher::WatchForOwnerChange);
    nameWatcher_.addWatchedService(kWatcherName);
    connect(&nameWatcher_, &QDBusServiceWatcher::serviceOwnerChanged, this,
            [this](const QString& /*name*/, const QString& /*old*/, const QString& owner) {
                watcher_->watcherOwnerChanged(owner);
            });
    // Without a sender: naming one would make Qt wait for the bus to tell its owner.
    for (const char* signal : {"StatusNotifierHostRegistered", "StatusNotifierHostUnregistered"}) {
        bus_.connect({}, kWatcherPath, kWatcherName, signal, this, SLOT(hostsChanged()));
    }
    bus_.connect({}, "/org/freedesktop/DBus/Local", "org.freedesktop.DBus.Local", "Disconnected",
                 this, SLOT(disconnected()));
    QDBusMessage question =
        QDBusMessage::createMethodCall(kBusName, kBusPath, kBusName, "GetNameOwner");
    question << kWatcherName;
    call(question, [this](const QDBusMessage& reply) {
        watcher_->watcherOwnerChanged(valueOf<QString>(reply).value_or(QString()));
    });
}

void SessionHostBus::identify(const QString& owner, std::function<void(HostProcess)> answer) {
    QDBusMessage question =
        QDBusMessage::createMethodCall(kBusName, kBusPath, kBusName, "GetConnectionUnixProcessID");
    question << owner;
    call(question, [this, answer = std::move(answer)](const QDBusMessage& reply) {
        HostProcess process;
        if (const auto pid = valueOf<uint>(reply)) {
            process.pid = static_cast<pid_t>(*pid);
            process.command = commandOf(*process.pid);
        }
        if (process.command == kGNOMEShell) {
            askForVersion(std::move(process), answer);
        } else {
            answer(std::move(process));
        }
    });
}

void SessionHostBus::askForVersion(HostProcess process, std::function<void(HostProcess)> answer) {
    QDBusMessage question = QDBusMessage::createMethodCall(
        "org.gnome.Shell", "/org/gnome/Shell", "org.freedesktop.DBus.Properties", "Get");
    question << "org.gnome.Shell"
             << "ShellVersion";
    call(question, [process = std::move(process),
                    answer = std::move(answer)](const QDBusMessage& reply) mutable {
        bool isNumber = false;
        const int major =
            valueOf<QString>(reply).value_or(QString()).section(u'.', 0, 0).toInt(&isNumber);
        if (isNumber) {
            process.version = major;
        }
        answer(std::move(process));
    });
}

void SessionHostBus::registerItem(const QString& owner, std::function<void(bool)> answer) {
    QDBusMessage request = QDBusMessage::createMethodCall(owner, kWatcherPath, kWatcherName,
                                                          "RegisterStatusNotifierItem");
    // By our unique name: watchers then look for the item at its usual path.
    request << bus_.baseService();
    call(request, [answer = std::move(answer)](const QDBusMessage& reply) {
        answer(reply.type() == QDBusMessage::ReplyMessage);
    });
}

void SessionHostBus::askForHost(const QString& owner, std::function<void(bool)> answer) {
    QDBusMessage question = QDBusMessage::createMethodCall(
        owner, kWatcherPath, "org.freedesktop.DBus.Properties", "Get");
    question << kWatcherName << "IsStatusNotifierHostRegistered";
    call(question, [answer = std::move(answer)](const QDBusMessage& reply) {
        answer(valueOf<bool>(reply).value_or(false));
    });
}

void SessionHostBus::hostsChanged() {
    watcher_->hostsChanged();
}

void SessionHostBus::disconnected() {
    watcher_->busLost();
}

void SessionHostBus::call(const QDBusMessage& message,
                          std::function<void(const QDBusMessage&)> answer) {
    auto* const pending = new QDBusPendingCallWatcher(bus_.asyncCall(message), this);
    connect(pending, &QDBusPendingCallWatcher::finished, this,
            [pending, answer = std::move(answer)] {
                pending->deleteLater();
                answer(pending->reply());
            });
}

}  // namespace zephrine
