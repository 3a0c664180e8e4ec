// SPDX-License-Identifier: MIT
// Where the popover goes: arithmetic only, in logical pixels with y downwards, as Qt's screens.
#pragma once

#include <QPoint>
#include <QRect>
#include <QSize>
#include <optional>

namespace zephrine {

/// The upper left corner of a popover of `size` for an item at `item`: below the item where there
/// is room, else above it, else beside it; centred on it, and always inside `workArea` (where the
/// popover is larger than that, its upper left corner is). Without an item it stands in the upper
/// right corner of `workArea`.
QPoint placePopover(const std::optional<QRect>& item, const QRect& workArea, QSize size);

/// The place nearest to `corner` at which a popover of `size` is inside `workArea`, with a gap to
/// its edges where there is room for one.
QPoint moveInto(const QRect& workArea, QPoint corner, QSize size);

}  // namespace zephrine
