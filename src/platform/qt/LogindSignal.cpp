// SPDX-License-Identifier: MIT
// https://www.freedesktop.org/software/systemd/man/org.freedesktop.login1.html: PrepareForSleep is
// sent with true before and with false after a sleep.
#include "platform/qt/LogindSignal.h"

#include <QString>
#include <utility>

namespace zephrine {

LogindSignal::LogindSignal(QDBusConnection bus, std::function<void()> resumed)
    : resumed_(std::move(resumed)) {
    if (bus.isConnected()) {
        // With the sender's name: anybody may send signals on the system bus.
        bus.connect(QStringLiteral("org.freedesktop.login1"),
                    QStringLiteral("/org/freedesktop/login1"),
                    QStringLiteral("org.freedesktop.login1.Manager"),
                    QStringLiteral("PrepareForSleep"), this, SLOT(prepareForSleep(bool)));
    }
}

void LogindSignal::prepareForSleep(bool begins) {
    if (!begins) {
        resumed_();
    }
}

}  // namespace zephrine
