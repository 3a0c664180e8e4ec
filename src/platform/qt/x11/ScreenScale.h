// SPDX-License-Identifier: MIT
// Between the pixels of the X server and the points of Qt, on one screen: Qt leaves the screen's
// corner where the X server has it, and scales distances from there.
#pragma once

#include <QRect>
#include <QScreen>

namespace zephrine {

class ScreenScale {
public:
    explicit ScreenScale(const QScreen& screen)
        : geometry_(screen.geometry()), scale_(screen.devicePixelRatio()) {}

    /// The whole screen, in pixels.
    [[nodiscard]] QRect pixels() const { return toPixels(geometry_); }
    [[nodiscard]] QRect toPixels(const QRect& points) const;
    [[nodiscard]] QRect toPoints(const QRect& pixels) const;
    /// The whole points that lie inside.
    [[nodiscard]] QRect pointsWithin(const QRect& pixels) const;

private:
    QRect geometry_;  ///< in points
    double scale_;    ///< pixels per point
};

}  // namespace zephrine
