// SPDX-License-Identifier: MIT
// The state machine. A watcher is asked three things in turn: whose process it is (so that the
// right pictures are ready), whether any panel shows its items, and to take the item. In this
// order, since some panels never show an item that came to the watcher while they looked at what it
// had.
#include "platform/qt/statusitem/HostWatcher.h"

#include <utility>

namespace zephrine {

HostWatcher::HostWatcher(HostBus& bus, Delay& delay, std::function<void()> changed)
    : bus_(bus), delay_(delay), changed_(std::move(changed)) {}

void HostWatcher::start(bool connected) {
    if (!connected) {
        answered_ = true;
        setPresence(Presence::absent);
        return;
    }
    update();
}

void HostWatcher::watcherOwnerChanged(const QString& owner) {
    const bool isFirst = !std::exchange(answered_, true);
    if (owner == owner_ && !isFirst) {
        return;
    }
    owner_ = owner;
    ++generation_;
    registration_ = Registration::none;
    hasHost_ = false;
    isHeldBack_ = false;
    if (std::exchange(process_, std::nullopt)) {
        changed_();
    }
    if (!owner.isEmpty()) {
        bus_.identify(owner, ifCurrent<HostProcess>([this](HostProcess process) {
                          process_ = std::move(process);
                          changed_();
                          offerItem();
                      }));
    } else if (isFirst) {
        missPanel();
    }
    update();
}

void HostWatcher::hostsChanged() {
    if (process_ && !isHeldBack_) {
        askForHost();
    }
}

void HostWatcher::busLost() {
    watcherOwnerChanged({});
}

void HostWatcher::setWanted(bool wanted) {
    isWanted_ = wanted;
    if (isWanted_ && std::exchange(isHeldBack_, false)) {
        setPresence(Presence::unknown);
        askForHost();
        update();
    }
}

void HostWatcher::offerItem() {
    if (isWanted_) {
        askForHost();
    } else {
        holdBack();
    }
}

void HostWatcher::holdBack() {
    isHeldBack_ = true;
    missPanel();
}

/// Without the delay.
void HostWatcher::missPanel() {
    delay_.stop();
    waiting_ = false;
    setPresence(Presence::absent);
}

void HostWatcher::askForHost() {
    bus_.askForHost(owner_, ifCurrent<bool>([this](bool hasHost) {
                        hasHost_ = hasHost;
                        if (hasHost && registration_ == Registration::none) {
                            isWanted_ ? registerItem() : holdBack();
                        }
                        update();
                    }));
}

void HostWatcher::registerItem() {
    registration_ = Registration::asked;
    bus_.registerItem(owner_, ifCurrent<bool>([this](bool registered) {
                          registration_ = registered ? Registration::done : Registration::none;
                          update();
                      }));
}

void HostWatcher::update() {
    if (registration_ == Registration::done && hasHost_) {
        delay_.stop();
        waiting_ = false;
        setPresence(Presence::present);
    } else if (presence_ != Presence::absent && !waiting_) {
        waiting_ = true;
        delay_.start([this] {
            waiting_ = false;
            setPresence(Presence::absent);
        });
    }
}

void HostWatcher::setPresence(Presence presence) {
    if (std::exchange(presence_, presence) != presence) {
        changed_();
    }
}

template <typename Answer>
std::function<void(Answer)> HostWatcher::ifCurrent(std::function<void(Answer)> next) {
    return [this, next = std::move(next), generation = generation_](Answer answer) {
        if (generation == generation_) {
            next(std::move(answer));
        }
    };
}

}  // namespace zephrine
