// SPDX-License-Identifier: MIT
// The watch's view of the real session bus: the watcher's name, its signals, and the calls to it.
#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusServiceWatcher>
#include <QObject>

#include "platform/qt/statusitem/host/HostBus.h"

namespace zephrine {

class HostWatcher;

class SessionHostBus final : public QObject, public HostBus {
    Q_OBJECT

public:
    explicit SessionHostBus(QDBusConnection bus);

    /// Feeds `watcher`, which outlives this object or is told nothing after it is gone.
    void start(HostWatcher& watcher);

    void identify(const QString& owner, std::function<void(HostProcess)> answer) override;
    void registerItem(const QString& owner, std::function<void(bool)> answer) override;
    void askForHost(const QString& owner, std::function<void(bool)> answer) override;

private:
    Q_SLOT void hostsChanged();
    Q_SLOT void disconnected();
    void askForVersion(HostProcess process, std::function<void(HostProcess)> answer);
    void call(const QDBusMessage& message, std::function<void(const QDBusMessage&)> answer);

    QDBusConnection bus_;
    QDBusServiceWatcher nameWatcher_;
    HostWatcher* watcher_ = nullptr;
};

}  // namespace zephrine
