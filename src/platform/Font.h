// SPDX-License-Identifier: MIT
// Fonts by role. `size` is points, which on every platform here are logical pixels.
#pragma once

namespace zephrine {

enum class FontFamily {
    system,           ///< the desktop's proportional family
    monospacedDigit,  ///< proportional, all ten digits equally wide
    monospaced,       ///< every character equally wide
};

enum class FontWeight { regular, medium, semibold };

struct Font {
    FontFamily family = FontFamily::system;
    double size = 13;
    FontWeight weight = FontWeight::regular;
    bool operator==(const Font&) const = default;
};

}  // namespace zephrine
