// SPDX-License-Identifier: MIT
// The text of our own autostart entry (Desktop Entry Specification 1.5).
#pragma once

#include <string>
#include <string_view>

namespace zephrine {

/// An entry that starts `program`, an absolute path of any characters, at login.
std::string autostartEntry(std::string_view program);

}  // namespace zephrine
