// SPDX-License-Identifier: MIT
// Screens minus panels.
#include "platform/qt/windows/WorkArea.h"

#include <QGuiApplication>
#include <algorithm>
#include <cmath>

#include "platform/qt/x11/ScreenScale.h"
#include "platform/qt/x11/X11Windows.h"

namespace zephrine {

namespace {

bool overlaps(int start, int end, int otherStart, int otherEnd) {
    return start <= otherEnd && otherStart <= end;
}

QRect withoutStrut(QRect area, const QRect& screen, QSize root, const Strut& strut) {
    if (strut.left > 0 &&
        overlaps(strut.leftStartY, strut.leftEndY, screen.top(), screen.bottom())) {
        area.setLeft(std::max(area.left(), strut.left));
    }
    if (strut.right > 0 &&
        overlaps(strut.rightStartY, strut.rightEndY, screen.top(), screen.bottom())) {
        area.setRight(std::min(area.right(), root.width() - strut.right - 1));
    }
    if (strut.top > 0 && overlaps(strut.topStartX, strut.topEndX, screen.left(), screen.right())) {
        area.setTop(std::max(area.top(), strut.top));
    }
    if (strut.bottom > 0 &&
        overlaps(strut.bottomStartX, strut.bottomEndX, screen.left(), screen.right())) {
        area.setBottom(std::min(area.bottom(), root.height() - strut.bottom - 1));
    }
    return area;
}

int distance(const QRect& rect, QPoint place) {
    const int across = std::max({rect.left() - place.x(), place.x() - rect.right(), 0});
    const int down = std::max({rect.top() - place.y(), place.y() - rect.bottom(), 0});
    return across + down;
}

}  // namespace

QRect withoutStruts(const QRect& screen, QSize root, const std::vector<Strut>& struts) {
    QRect area = screen;
    for (const Strut& strut : struts) {
        const QRect smaller = withoutStrut(area, screen, root, strut) & screen;
        if (smaller.width() * 2 > screen.width() && smaller.height() * 2 > screen.height()) {
            area = smaller;
        }
    }
    return area;
}

QRect workAreaOf(const QScreen& screen) {
    const QRect available = screen.availableGeometry();
    const auto panels = x11Panels();
    if (!panels || screen.virtualSiblings().size() < 2) {
        return available;
    }
    const ScreenScale scale(screen);
    return scale.pointsWithin(withoutStruts(scale.pixels(), panels->root, panels->struts));
}

const QScreen& screenAt(QPoint place) {
    const auto screens = QGuiApplication::screens();
    return **std::min_element(screens.begin(), screens.end(), [place](auto* one, auto* other) {
        return distance(one->geometry(), place) < distance(other->geometry(), place);
    });
}

}  // namespace zephrine
