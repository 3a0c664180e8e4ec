// SPDX-License-Identifier: MIT
// The settings that a desktop on X11 shares with all applications:
// https://specifications.freedesktop.org/xsettings-spec/0.5/, "_XSETTINGS_SETTINGS Format".
#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <string_view>
#include <variant>

namespace zephrine {

/// By name. Colours, the third kind of value, are left out.
using XSettings = std::map<std::string, std::variant<std::int32_t, std::string>, std::less<>>;

/// Reads the property as the settings manager has written it. What comes after something that
/// makes no sense is left out.
XSettings parseXSettings(std::string_view property);

}  // namespace zephrine
