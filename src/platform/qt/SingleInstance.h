// SPDX-License-Identifier: MIT
// One running program a session: the first one holds a name on the session bus, or listens at a
// socket where there is no bus. A later start hands over what it was asked for and ends.
#pragma once

#include <QDBusConnection>
#include <optional>

#include "platform/linux/desktop/InstancePlace.h"
#include "platform/qt/instance/Handover.h"
#include "platform/qt/instance/InstanceBus.h"
#include "platform/qt/instance/InstanceSocket.h"

namespace zephrine {

/// Hands `options` to the instance that runs at `place`. Needs no application object, so that a
/// start that is not needed ends before anything is made.
Handover handOver(const QDBusConnection& bus, const InstancePlace& place,
                  const HandedOptions& options);

class SingleInstance {
public:
    SingleInstance(const QDBusConnection& bus, InstancePlace place, HandoverReceiver receiver);

    /// Takes the place. False when another instance was faster and `options` are handed over to it.
    /// One that does not answer is no reason not to run.
    [[nodiscard]] bool claim(const HandedOptions& options);

private:
    [[nodiscard]] bool takePlace();

    QDBusConnection bus_;
    InstancePlace place_;
    InstanceBus onBus_;
    InstanceSocket atSocket_;
    bool isTaken_ = false;
};

}  // namespace zephrine
