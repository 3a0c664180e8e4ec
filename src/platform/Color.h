// SPDX-License-Identifier: MIT
// Colours by meaning, never by value: a back end resolves each one at the moment of drawing, so
// that the same picture follows a change between the light and the dark appearance.
#pragma once

namespace zephrine {

enum class Color {
    white,
    black,
    labelColor,
    secondaryLabelColor,
    quaternaryLabelColor,
    systemBlueColor,
    systemGreenColor,
    systemOrangeColor,
    systemPurpleColor,
    systemRedColor,
};

/// How a surface looks; `aqua` is the light one.
enum class Appearance { aqua, darkAqua };

}  // namespace zephrine
