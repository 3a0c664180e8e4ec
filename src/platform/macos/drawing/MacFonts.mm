// SPDX-License-Identifier: MIT
#include "platform/macos/drawing/MacFonts.h"

#include "platform/Trap.h"

namespace zephrine {

namespace {

NSFontWeight nsFontWeight(FontWeight weight) {
    switch (weight) {
        case FontWeight::regular:
            return NSFontWeightRegular;
        case FontWeight::medium:
            return NSFontWeightMedium;
        case FontWeight::semibold:
            return NSFontWeightSemibold;
    }
    trap();
}

}  // namespace

NSFont* nsFont(const Font& font) {
    const NSFontWeight weight = nsFontWeight(font.weight);
    switch (font.family) {
        case FontFamily::system:
            return [NSFont systemFontOfSize:font.size weight:weight];
        case FontFamily::monospacedDigit:
            return [NSFont monospacedDigitSystemFontOfSize:font.size weight:weight];
        case FontFamily::monospaced:
            return [NSFont monospacedSystemFontOfSize:font.size weight:weight];
    }
    trap();
}

}  // namespace zephrine
