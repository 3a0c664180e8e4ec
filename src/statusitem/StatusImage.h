// SPDX-License-Identifier: MIT
// The picture of the status item: two lines of text and the dot of the memory pressure.
#pragma once

#include <optional>
#include <string>

#include "platform/Color.h"
#include "platform/Drawing.h"

namespace zephrine {

/// All that the picture shows. Its drawing handlers copy it, so that they can be called at any
/// time after the readings have moved on.
struct StatusContent {
    std::string cpuText;
    std::string ramText;
    std::optional<double> cpuPercent;  ///< for the forms that have no room for text
    std::optional<double> ramPercent;
    double fontSize = 9;
    Color dot = Color::secondaryLabelColor;
    bool isDark = false;
};

/// The two lines of the picture.
std::string firstLine(const StatusContent& content);
std::string secondLine(const StatusContent& content);

/// The wide picture, 24 points high. Its width follows from the font size alone, so that the item
/// does not jitter as the figures change.
Image statusImage(const StatusContent& content, const TextMeasure& measure);

/// The same with both lines side by side, 12 points high, for bars of that height.
Image lineImage(const StatusContent& content, const TextMeasure& measure);

}  // namespace zephrine
