// SPDX-License-Identifier: MIT
// The dashboard's elements in the order of adding, as its design fixes them. Both the fake widgets
// and the real ones are compared with this one table.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "platform/Widgets.h"

namespace zephrine {

struct DashboardElement {
    std::string kind;
    Rect frame;
    std::string text = {};  ///< a label's text, a button's title
    std::optional<Font> font = {};
    Color color = Color::labelColor;
    TextAlignment alignment = TextAlignment::natural;
    LineBreakMode lineBreakMode = LineBreakMode::clipping;
};

inline DashboardElement styled(const Rect& frame, std::string text, double size, FontWeight weight,
                               Color color, TextAlignment alignment = TextAlignment::left) {
    return {.kind = "label",
            .frame = frame,
            .text = std::move(text),
            .font = Font{FontFamily::system, size, weight},
            .color = color,
            .alignment = alignment,
            .lineBreakMode = LineBreakMode::truncatingTail};
}

inline DashboardElement plain(const Rect& frame, std::string text, const Font& font, Color color) {
    return {.kind = "label", .frame = frame, .text = std::move(text), .font = font, .color = color};
}

// NOLINTNEXTLINE(readability-function-size): a table, and nothing else
inline std::vector<DashboardElement> dashboardTable(
    const std::string& tagline = "Your Mac, at a glance.") {
    using enum FontWeight;
    const auto secondary = Color::secondaryLabelColor;
    const Font figures{FontFamily::monospacedDigit, 27, medium};
    const Font small{FontFamily::system, 9, regular};
    const auto right = TextAlignment::right;
    std::vector<DashboardElement> table{
        {.kind = "image", .frame = {20, 599, 40, 40}},
        styled({70, 620, 260, 24}, "Zephrine", 20, semibold, Color::labelColor),
        styled({70, 600, 260, 18}, tagline, 11, regular, secondary),
        styled({20, 568, 95, 16}, "CPU", 10, semibold, Color::systemBlueColor),
        plain({20, 530, 110, 34}, "—", figures, Color::labelColor),
        styled({130, 568, 95, 16}, "RAM", 10, semibold, Color::systemGreenColor),
        plain({130, 530, 110, 34}, "—", figures, Color::labelColor),
        styled({240, 568, 95, 16}, "GPU", 10, semibold, Color::systemPurpleColor),
        plain({240, 530, 110, 34}, "—", figures, Color::labelColor),
        styled({20, 513, 105, 14}, "Total capacity", 9, regular, secondary),
        plain({130, 513, 105, 14}, "Measuring memory", small, secondary),
        plain({240, 513, 105, 14}, "Driver-reported usage", small, secondary),
        plain({20, 465, 320, 22}, "● Memory pressure: —", {FontFamily::system, 12, medium},
              Color::labelColor),
        styled({20, 425, 180, 16}, "LAST 5 MINUTES", 10, semibold, secondary),
        styled({300, 425, 40, 16}, "100%", 10, regular, secondary, right),
        {.kind = "canvas", .frame = {20, 309, 320, 106}},
        styled({20, 288, 100, 16}, "5 min ago", 9, regular, secondary),
        styled({300, 288, 40, 16}, "Now", 9, regular, secondary, right),
        styled({20, 255, 170, 22}, "Top processes", 13, semibold, Color::labelColor),
        {.kind = "segments", .frame = {235, 254, 106, 24}},
    };
    for (const double y : {225.0, 200.0, 175.0, 150.0, 125.0}) {
        table.push_back(
            styled({20, y, 233, 20}, y == 225 ? "Measuring…" : "", 12, regular, Color::labelColor));
        table.push_back(styled({256, y, 84, 20}, "", 12, regular, Color::labelColor, right));
    }
    table.push_back(styled({20, 98, 325, 15}, "Accessible processes · CPU share of total capacity",
                           9, regular, secondary));
    table.push_back({.kind = "separator", .frame = {20, 82, 320, 1}});
    table.push_back({.kind = "button", .frame = {14, 37, 100, 30}, .text = "Settings…"});
    table.push_back({.kind = "button", .frame = {277, 37, 70, 30}, .text = "Quit"});
    table.push_back(plain({20, 13, 320, 15}, "Updates every second", small, secondary));
    return table;
}

}  // namespace zephrine
