// SPDX-License-Identifier: MIT
#include "platform/macos/drawing/MacColors.h"

#include "platform/Trap.h"

namespace zephrine {

NSColor* nsColor(Color color) {
    switch (color) {
        case Color::white:
            return NSColor.whiteColor;
        case Color::black:
            return NSColor.blackColor;
        case Color::labelColor:
            return NSColor.labelColor;
        case Color::secondaryLabelColor:
            return NSColor.secondaryLabelColor;
        case Color::quaternaryLabelColor:
            return NSColor.quaternaryLabelColor;
        case Color::systemBlueColor:
            return NSColor.systemBlueColor;
        case Color::systemGreenColor:
            return NSColor.systemGreenColor;
        case Color::systemOrangeColor:
            return NSColor.systemOrangeColor;
        case Color::systemPurpleColor:
            return NSColor.systemPurpleColor;
        case Color::systemRedColor:
            return NSColor.systemRedColor;
    }
    trap();
}

}  // namespace zephrine
