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
    std::string configHome = {};      ///< empty when there is no home
    std::string currentDesktop = {};  ///< $XDG_CURRENT_DESKTOP
    std::string searchPath = {};      ///< $PATH
    std::string program = {};         ///< path of this program; empty when it cannot be told
    std::string sandbox = {};         ///< "Flatpak" or "Snap" when the program runs inside one
    static AutostartEnvironment current();
};

/// The name of the sandbox that the program at `program` runs in; empty outside. `snap` is $SNAP,
/// the folder of the snap; Flatpak leaves the file `flatpakInfo` in its sandboxes.
std::string sandboxOf(const std::string& program, const std::string& snap, const char* flatpakInfo);

class AutostartLoginItem final : public LoginItem {
public:
    explicit AutostartLoginItem(AutostartEnvironment environment = AutostartEnvironment::current());

    /// `notRegistered` without an entry, `notFound` when there is no place for one, when it cannot
    /// be read as an entry, or when its program cannot be run. Always `notFound` in a sandbox,
    /// which hides the folder that counts; the portal that can be asked there to start a program at
    /// login (org.freedesktop.portal.Background) does not tell whether it will.
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
