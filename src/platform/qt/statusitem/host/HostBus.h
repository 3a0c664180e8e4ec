// SPDX-License-Identifier: MIT
// What the watch over the panel needs of the message bus. Main thread only; nothing here waits:
// each answer comes later, and never if the other side does not give one.
#pragma once

#include <sys/types.h>

#include <QString>
#include <functional>
#include <optional>
#include <string>

namespace zephrine {

/// The process behind a bus name, as far as it is known.
struct HostProcess {
    std::optional<pid_t> pid;
    /// As the kernel keeps it, cut off after 15 bytes; empty when not known.
    std::string command;
    /// The major version, where forms depend on it: GNOME's.
    std::optional<int> version = std::nullopt;
};

class HostBus {
public:
    virtual ~HostBus() = default;

    /// `owner` is a unique bus name in all three.
    virtual void identify(const QString& owner, std::function<void(HostProcess)> answer) = 0;
    /// Registers the item with the watcher `owner`; false when that failed.
    virtual void registerItem(const QString& owner, std::function<void(bool)> answer) = 0;
    /// Whether a panel shows the items of the watcher `owner`.
    virtual void askForHost(const QString& owner, std::function<void(bool)> answer) = 0;
};

}  // namespace zephrine
