// SPDX-License-Identifier: MIT
// Whether a desktop would start the program of an autostart entry (Desktop Application Autostart
// Specification 0.5, and what the desktops added to it).
#pragma once

#include <functional>
#include <string_view>

#include "platform/LoginItem.h"
#include "platform/linux/login/DesktopEntry.h"

namespace zephrine {

/// `currentDesktop` is $XDG_CURRENT_DESKTOP: names between colons. `programExists` says whether a
/// program, by its path or its name, can be run.
LoginItemStatus autostartStatus(const DesktopEntry& entry, std::string_view currentDesktop,
                                const std::function<bool(std::string_view)>& programExists);

}  // namespace zephrine
