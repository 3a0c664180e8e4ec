// SPDX-License-Identifier: MIT
#include "platform/qt/x11/ScreenScale.h"

#include <cmath>

namespace zephrine {

QRect ScreenScale::toPixels(const QRect& points) const {
    const QPoint corner = geometry_.topLeft();
    return {corner + (points.topLeft() - corner) * scale_, points.size() * scale_};
}

QRect ScreenScale::toPoints(const QRect& pixels) const {
    const QPoint corner = geometry_.topLeft();
    return {corner + (pixels.topLeft() - corner) / scale_, pixels.size() / scale_};
}

QRect ScreenScale::pointsWithin(const QRect& pixels) const {
    const QPoint corner = geometry_.topLeft();
    const QPoint inset = pixels.topLeft() - corner;
    const QPoint start(static_cast<int>(std::ceil(inset.x() / scale_)),
                       static_cast<int>(std::ceil(inset.y() / scale_)));
    return {corner + start, QSize(static_cast<int>(pixels.width() / scale_),
                                  static_cast<int>(pixels.height() / scale_))};
}

}  // namespace zephrine
