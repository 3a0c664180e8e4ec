// SPDX-License-Identifier: MIT
// A watcher is asked three things in turn: whose process it is (so that the right pictures are
// ready), whether any panel shows its items, and to take the item. In this order, since some panels
// never show an item that came to the watcher while they looked at what it had.
#include "platform/qt/statusitem/host/HostWatcher.h"

#include <utility>

namespace zephrine {

HostWatcher::HostWatcher(HostBus& bus, std::function<void()> changed)
    : bus_(bus), changed_(std::move(changed)) {}

void HostWatcher::start(bool connected) {
    if (!connected) {
        setState(PanelReport::State::none);
    }
}

void HostWatcher::watcherOwnerChanged(const QString& owner) {
    const bool isFirst = state_ == PanelReport::State::unknown;
    if (owner == owner_ && !isFirst) {
        return;
    }
    owner_ = owner;
    ++generation_;
    registration_ = Registration::none;
    hasHost_ = false;
    const bool wasKnown = std::exchange(process_, std::nullopt).has_value();
    const auto before = state_;
    update();
    if (wasKnown && state_ == before) {
        changed_();
    }
    if (!owner.isEmpty()) {
        bus_.identify(owner, ifCurrent<HostProcess>([this](HostProcess process) {
                          process_ = std::move(process);
                          changed_();
                          askForHost();
                      }));
    }
}

void HostWatcher::hostsChanged() {
    if (process_) {
        askForHost();
    }
}

void HostWatcher::busLost() {
    watcherOwnerChanged({});
}

void HostWatcher::setOffered(bool offered) {
    if (std::exchange(isOffered_, offered) != offered && process_) {
        askForHost();
    }
}

void HostWatcher::askForHost() {
    if (!isOffered_) {
        return;
    }
    bus_.askForHost(owner_, ifCurrent<bool>([this](bool hasHost) {
                        hasHost_ = hasHost;
                        if (hasHost && isOffered_ && registration_ == Registration::none) {
                            registerItem();
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
    const bool shows = registration_ == Registration::done && hasHost_;
    setState(shows              ? PanelReport::State::showing
             : owner_.isEmpty() ? PanelReport::State::none
                                : PanelReport::State::silent);
}

void HostWatcher::setState(PanelReport::State state) {
    if (std::exchange(state_, state) != state) {
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
