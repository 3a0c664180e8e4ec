// SPDX-License-Identifier: MIT
// The login manager's word that the machine has woken up: it also tells of sleeps that no clock
// shows, as those of some virtual machines.
#pragma once

#include <QDBusConnection>
#include <QObject>
#include <functional>

namespace zephrine {

class LogindSignal final : public QObject {
    Q_OBJECT

public:
    /// `bus` is the system's, connected or not.
    LogindSignal(QDBusConnection bus, std::function<void()> resumed);

private:
    Q_SLOT void prepareForSleep(bool begins);

    std::function<void()> resumed_;
};

}  // namespace zephrine
