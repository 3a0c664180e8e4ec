// SPDX-License-Identifier: MIT
// The settings window's controls in the order of adding, as its design fixes them.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "platform/Widgets.h"

namespace zephrine {

struct SettingsElement {
    std::string kind;
    Rect frame;
    std::string text = {};          ///< a label's text, a check box's title
    std::optional<Font> font = {};  ///< absent: the control's own
    Color color = Color::labelColor;
    std::vector<std::string> items = {};  ///< a pop-up button's
    std::string accessibilityLabel = {};
    TextAlignment alignment = TextAlignment::natural;
    LineBreakMode lineBreakMode = LineBreakMode::clipping;
};

inline std::vector<SettingsElement> settingsTable(
    const std::string& textSizeTitle = "Menu bar text") {
    const auto font = [](double size, FontWeight weight = FontWeight::regular) {
        return Font{FontFamily::system, size, weight};
    };
    const auto secondary = Color::secondaryLabelColor;
    return {
        {"label", {24, 264, 350, 30}, "Make it yours.", font(22, FontWeight::semibold)},
        {"check box", {24, 222, 350, 24}, "Launch Zephrine at login"},
        {"label", {44, 198, 332, 22}, "", font(10), secondary},
        {"label", {24, 156, 165, 23}, "RAM display"},
        {.kind = "pop-up",
         .frame = {205, 156, 170, 26},
         .items = {"Percentage", "Gigabytes"},
         .accessibilityLabel = "RAM display"},
        {"label", {24, 113, 165, 23}, textSizeTitle},
        {.kind = "pop-up",
         .frame = {205, 113, 170, 26},
         .items = {"Small", "Medium", "Large"},
         .accessibilityLabel = textSizeTitle},
        {"label", {24, 70, 165, 23}, "Refresh interval"},
        {.kind = "pop-up",
         .frame = {205, 70, 170, 26},
         .items = {"0.5 seconds", "1 second", "2 seconds", "5 seconds"},
         .accessibilityLabel = "Refresh interval"},
        {"label", {24, 21, 350, 20}, "Slower refresh rates use less energy.", font(11), secondary},
    };
}

}  // namespace zephrine
