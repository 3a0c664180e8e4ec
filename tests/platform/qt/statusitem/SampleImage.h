// SPDX-License-Identifier: MIT
// A picture of the status item's kind: one filled half in a colour that tells light from dark.
#pragma once

#include "platform/StatusBar.h"

namespace zephrine {

inline Image sampleRectangle(Size size, Color color) {
    return {size, [=](DrawingContext& context) {
                context.setFill(color);
                context.fillRect({0, 0, size.width / 2, size.height});
                return true;
            }};
}

inline StatusItemImage sampleImage(Color color = Color::systemGreenColor) {
    return {sampleRectangle({68, 24}, color), [=](double side) {
                return sampleRectangle({side, side}, color);
            }};
}

}  // namespace zephrine
