// SPDX-License-Identifier: MIT
// See the header.
#include "platform/linux/base/ConfigHome.h"

#include <cstdlib>
#include <string_view>

namespace zephrine {

namespace {

bool isAbsolute(const char* path) {
    return path != nullptr && *path == '/';
}

}  // namespace

std::string configHome(const char* xdgConfigHome, const char* home) {
    if (isAbsolute(xdgConfigHome)) {
        return xdgConfigHome;
    }
    return isAbsolute(home) ? std::string(home) + "/.config" : std::string();
}

std::string configHome() {
    return configHome(std::getenv("XDG_CONFIG_HOME"), std::getenv("HOME"));
}

}  // namespace zephrine
