// SPDX-License-Identifier: MIT
// Follows the panel: finds out which one shows the item, registers the item with each new one, and
// tells when there is none. Panels crash, restart and start late, so "none" is believed only after
// a delay, except at the very start when nobody is there at all.
#pragma once

#include <QString>
#include <functional>
#include <optional>

#include "platform/qt/statusitem/HostBus.h"

namespace zephrine {

class HostWatcher {
public:
    enum class Presence { unknown, present, absent };

    /// `changed` is called when `presence` or `process` has changed.
    HostWatcher(HostBus& bus, Delay& delay, std::function<void()> changed);

    /// Call once. `connected` is whether there is a bus at all.
    void start(bool connected);
    /// The watcher's name has a new owner, a unique bus name; empty: it has none (any more).
    void watcherOwnerChanged(const QString& owner);
    /// The watcher has gained or lost a panel.
    void hostsChanged();
    void busLost();
    /// Whether a panel is to be given the item; at first each one is. Without effect on one that
    /// has it already.
    void setWanted(bool wanted);

    [[nodiscard]] Presence presence() const { return presence_; }
    /// The watcher's process; absent while there is no watcher, and nobody asks for the item.
    [[nodiscard]] const std::optional<HostProcess>& process() const { return process_; }

private:
    enum class Registration { none, asked, done };

    void offerItem();
    void holdBack();
    void missPanel();
    void askForHost();
    void registerItem();
    void update();
    void setPresence(Presence presence);
    /// Runs `next` with an answer, unless the watcher is another by then.
    template <typename Answer>
    std::function<void(Answer)> ifCurrent(std::function<void(Answer)> next);

    HostBus& bus_;
    Delay& delay_;
    std::function<void()> changed_;
    Presence presence_ = Presence::unknown;
    std::optional<HostProcess> process_;
    QString owner_;
    bool isWanted_ = true;
    bool isHeldBack_ = false;  ///< from the panel that there is
    bool answered_ = false;
    Registration registration_ = Registration::none;
    bool hasHost_ = false;
    bool waiting_ = false;
    unsigned generation_ = 0;
};

}  // namespace zephrine
