// SPDX-License-Identifier: MIT
// Variables of the environment as texts.
#pragma once

#include <cstdlib>
#include <string>

namespace zephrine {

/// Empty when it is not set.
inline std::string environmentVariable(const char* name) {
    const char* const value = std::getenv(name);
    return value == nullptr ? std::string() : value;
}

}  // namespace zephrine
