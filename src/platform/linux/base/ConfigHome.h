// SPDX-License-Identifier: MIT
// Where a user's settings live (XDG Base Directory Specification).
#pragma once

#include <string>

namespace zephrine {

/// $XDG_CONFIG_HOME when that is an absolute path, else $HOME/.config; empty when there is no home.
/// Null means that the variable is not set.
std::string configHome(const char* xdgConfigHome, const char* home);

/// The same from the environment of this process.
std::string configHome();

}  // namespace zephrine
