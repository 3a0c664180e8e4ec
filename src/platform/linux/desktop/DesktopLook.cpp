// SPDX-License-Identifier: MIT
// Themes do not tell whether they are dark, but those that are have it in their names.
#include "platform/linux/desktop/DesktopLook.h"

#include <algorithm>
#include <array>
#include <cctype>

namespace zephrine {

namespace {

// As in Adwaita-dark, Arc-Dark, BlackMATE and HighContrastInverse.
constexpr std::array<std::string_view, 3> kDarkNames{"dark", "black", "inverse"};

bool isDark(std::string name) {
    std::transform(name.begin(), name.end(), name.begin(),
                   [](unsigned char letter) { return static_cast<char>(std::tolower(letter)); });
    return std::any_of(kDarkNames.begin(), kDarkNames.end(),
                       [&](std::string_view dark) { return name.find(dark) != std::string::npos; });
}

template <typename Value>
const Value* valueOf(const XSettings& settings, std::string_view name) {
    const auto found = settings.find(name);
    return found == settings.end() ? nullptr : std::get_if<Value>(&found->second);
}

}  // namespace

DesktopLook lookOf(const XSettings& settings) {
    DesktopLook look;
    const auto* const theme = valueOf<std::string>(settings, "Net/ThemeName");
    if (theme != nullptr && isDark(*theme)) {
        look.appearance = Appearance::darkAqua;
    }
    const auto* const animations = valueOf<std::int32_t>(settings, "Gtk/EnableAnimations");
    look.animates = animations == nullptr || *animations != 0;
    return look;
}

}  // namespace zephrine
