// SPDX-License-Identifier: MIT
// A message bus of the test's own, and waiting for what comes over it.
#pragma once

#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCall>
#include <QDeadlineTimer>
#include <QEventLoop>
#include <QProcess>
#include <QString>
#include <functional>
#include <stdexcept>
#include <string>

namespace zephrine {

/// Lets events happen until `condition` holds; false when it did not within a very long time.
inline bool waitUntil(const std::function<bool()>& condition) {
    QDeadlineTimer deadline(20000);
    while (!condition()) {
        if (deadline.hasExpired()) {
            return false;
        }
        QCoreApplication::processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents, 20);
    }
    return true;
}

class PrivateBus {
public:
    PrivateBus() {
        daemon_.start("dbus-daemon", {"--session", "--nofork", "--nopidfile", "--print-address=1"});
        if (!daemon_.waitForStarted() || !daemon_.waitForReadyRead()) {
            throw std::runtime_error("dbus-daemon does not start");
        }
        address_ = QString::fromLatin1(daemon_.readLine()).trimmed();
    }
    ~PrivateBus() { stop(); }
    Q_DISABLE_COPY_MOVE(PrivateBus)

    void stop() {
        daemon_.kill();
        daemon_.waitForFinished();
    }

    [[nodiscard]] const QString& address() const { return address_; }

private:
    QProcess daemon_;
    QString address_;
};

/// A program on the bus.
class BusPeer {
public:
    explicit BusPeer(const PrivateBus& bus)
        : bus_(QDBusConnection::connectToBus(
              bus.address(), "peer-" + QString::number(reinterpret_cast<quintptr>(this)))) {}
    ~BusPeer() { QDBusConnection::disconnectFromBus(bus_.name()); }
    Q_DISABLE_COPY_MOVE(BusPeer)

    QDBusConnection& bus() { return bus_; }

    /// The answer, be it an error.
    QDBusMessage call(const QString& name, const QString& path, const QString& interface,
                      const QString& member, const QVariantList& arguments = {}) {
        QDBusMessage message = QDBusMessage::createMethodCall(name, path, interface, member);
        message.setArguments(arguments);
        const QDBusPendingCall pending = bus_.asyncCall(message);
        waitUntil([&] { return pending.isFinished(); });
        return pending.reply();
    }

private:
    QDBusConnection bus_;
};

}  // namespace zephrine
