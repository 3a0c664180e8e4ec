// SPDX-License-Identifier: MIT
// The compositor sway puts every floating window into the middle of the screen, wherever it asks
// to be, and takes the focus from it as soon as the pointer touches another on the way there. So it
// is told where to put the popover: where the pointer is, which has just clicked the item, unless
// the place of the item is known.
#pragma once

#include <QPoint>
#include <QRect>
#include <cstdint>
#include <string>

namespace zephrine {

enum class SwayAnswer {
    moved,
    unknownWindow,  ///< not shown, or not yet
    none,           ///< this is not sway, or it does not answer properly
};

/// Moves `window` of the X server to `corner`, in pixels. `socket` is sway's.
SwayAnswer moveOnSway(const std::string& socket, std::uint32_t window, QPoint corner);

/// Moves `window` of the X server to the pointer, with all of `panel`, a part of it in pixels from
/// its own corner, outside the bars.
SwayAnswer moveToPointerOnSway(const std::string& socket, std::uint32_t window, const QRect& panel);

}  // namespace zephrine
