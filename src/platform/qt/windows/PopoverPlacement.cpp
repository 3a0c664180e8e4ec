// SPDX-License-Identifier: MIT
// An item mostly stands in a panel at one edge, outside the work area: the popover then touches
// that edge of the work area, whatever the exact place of the item across the panel.
#include "platform/qt/windows/PopoverPlacement.h"

#include <algorithm>

namespace zephrine {

namespace {

constexpr int gap = 6;  // between the item, or the edge, and the popover

int clampStart(int start, int length, int areaStart, int areaLength) {
    return std::max(areaStart, std::min(start, areaStart + areaLength - length));
}

QPoint clampInto(QPoint corner, const QRect& area, QSize size) {
    return {clampStart(corner.x(), size.width(), area.x(), area.width()),
            clampStart(corner.y(), size.height(), area.y(), area.height())};
}

/// `area` without a gap's width at each edge, where that leaves room for the popover.
QRect withMargins(const QRect& area, QSize size) {
    const int across = area.width() >= size.width() + 2 * gap ? gap : 0;
    const int down = area.height() >= size.height() + 2 * gap ? gap : 0;
    return area.adjusted(across, down, -across, -down);
}

}  // namespace

QPoint placePopover(const std::optional<QRect>& item, const QRect& workArea, QSize size) {
    const QRect area = withMargins(workArea, size);
    if (!item) {
        return clampInto({area.x() + area.width() - size.width(), area.y()}, area, size);
    }
    const int itemRight = item->x() + item->width();
    const int itemBottom = item->y() + item->height();
    const int centredX = item->x() + (item->width() - size.width()) / 2;
    const int centredY = item->y() + (item->height() - size.height()) / 2;
    const QPoint middle = item->center();
    if (middle.x() < workArea.left() || middle.x() > workArea.right()) {  // a panel at one side
        const bool atLeft = middle.x() < workArea.left();
        return clampInto({atLeft ? itemRight + gap : item->x() - gap - size.width(), centredY},
                         area, size);
    }
    const int below = std::max(itemBottom + gap, area.y());
    const int above = item->y() - gap - size.height();
    if (below + size.height() <= area.y() + area.height()) {
        return clampInto({centredX, below}, area, size);
    }
    if (above >= area.y() || middle.y() > workArea.bottom()) {
        return clampInto({centredX, above}, area, size);
    }
    const int right = itemRight + gap;
    const bool fitsRight = right + size.width() <= area.x() + area.width();
    return clampInto({fitsRight ? right : item->x() - gap - size.width(), centredY}, area, size);
}

QPoint moveInto(const QRect& workArea, QPoint corner, QSize size) {
    return clampInto(corner, withMargins(workArea, size), size);
}

}  // namespace zephrine
