// SPDX-License-Identifier: MIT
// The login item of the freedesktop world: an entry of our own in the user's autostart folder.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform/LoginItem.h"

namespace zephrine {

/// Where the entry stands, what it starts, and what decides whether a desktop starts it.
struct AutostartEnvironment {
    std::string configHome;      ///< empty when there is no home
    std::string currentDesktop;  ///< $XDG_CURRENT_DESKTOP
    std::string searchPath;      ///< $PATH
    std::string program;         ///< path of this program; empty when it cannot be told
    static AutostartEnvironment current();
};

class AutostartLoginItem final : public LoginItem {
public:
    explicit AutostartLoginItem(AutostartEnvironment environment = AutostartEnvironment::current());

    /// `notRegistered` without an entry, `notFound` when there is no place for one, when it cannot
    /// be read as an entry, or when its program cannot be run.
    [[nodiscard]] LoginItemStatus status() const override;

    /// Writes an entry that starts this program and is switched on, over any other of that name.
    [[nodiscard]] std::optional<std::string> registerItem() override;
    /// Removes the entry; it is no error when there is none.
    [[nodiscard]] std::optional<std::string> unregisterItem() override;

private:
    [[nodiscard]] std::string path() const;
    [[nodiscard]] bool programExists(std::string_view program) const;

    AutostartEnvironment environment_;
};

}  // namespace zephrine
