// SPDX-License-Identifier: MIT
#include "platform/qt/SingleInstance.h"

#include <utility>

namespace zephrine {

Handover handOver(const QDBusConnection& bus, const InstancePlace& place,
                  const HandedOptions& options) {
    if (place.display.empty()) {
        return Handover::nobody;
    }
    return bus.isConnected() ? handOverBus(bus, place.busName(), options)
                             : handOverSocket(place.socketPath(), options);
}

SingleInstance::SingleInstance(const QDBusConnection& bus, InstancePlace place,
                               HandoverReceiver receiver)
    : bus_(bus), place_(std::move(place)), onBus_(bus, receiver), atSocket_(std::move(receiver)) {}

bool SingleInstance::claim(const HandedOptions& options) {
    isTaken_ = isTaken_ || takePlace();
    return isTaken_ || handOver(bus_, place_, options) != Handover::done;
}

bool SingleInstance::takePlace() {
    if (place_.display.empty()) {
        return true;
    }
    if (bus_.isConnected()) {
        return onBus_.claim(place_.busName(), InstancePlace::sharedBusName);
    }
    return place_.runtimeFolder.empty() || atSocket_.claim(place_.socketPath());
}

}  // namespace zephrine
