// SPDX-License-Identifier: MIT
// Follows the panel: finds out which one shows the item, and registers the item with each new one.
// Reports what it finds; what follows from it is decided elsewhere.
#pragma once

#include <QString>
#include <functional>
#include <optional>

#include "platform/qt/statusitem/host/HostBus.h"
#include "platform/qt/statusitem/placement/ItemPlacement.h"

namespace zephrine {

class HostWatcher {
public:
    /// `changed` is called when `state` or `process` has changed; it may call `setOffered`.
    HostWatcher(HostBus& bus, std::function<void()> changed);

    /// Call once. `connected` is whether there is a bus at all.
    void start(bool connected);
    /// The watcher's name has a new owner, a unique bus name; empty: it has none (any more).
    void watcherOwnerChanged(const QString& owner);
    /// The watcher has gained or lost a panel.
    void hostsChanged();
    void busLost();
    /// Whether a panel is to be given the item; at first each one is. Without effect on one that
    /// has it already.
    void setOffered(bool offered);

    [[nodiscard]] PanelReport::State state() const { return state_; }
    /// The watcher's process; absent while there is no watcher, and nobody asks for the item.
    [[nodiscard]] const std::optional<HostProcess>& process() const { return process_; }

private:
    enum class Registration { none, asked, done };

    void askForHost();
    void registerItem();
    void update();
    void setState(PanelReport::State state);
    /// Runs `next` with an answer, unless the watcher is another by then.
    template <typename Answer>
    std::function<void(Answer)> ifCurrent(std::function<void(Answer)> next);

    HostBus& bus_;
    std::function<void()> changed_;
    PanelReport::State state_ = PanelReport::State::unknown;
    std::optional<HostProcess> process_;
    QString owner_;
    bool isOffered_ = true;
    Registration registration_ = Registration::none;
    bool hasHost_ = false;
    unsigned generation_ = 0;
};

}  // namespace zephrine
