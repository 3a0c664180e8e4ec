// SPDX-License-Identifier: MIT
// How the item's picture stands in the window that a tray gives it: arithmetic only. A tray may
// keep the width that it was asked for, or force a square.
#pragma once

#include <QPoint>
#include <QSize>

#include "platform/Geometry.h"

namespace zephrine {

struct TrayLayout {
    bool isWide = false;
    double scale = 0;    ///< device pixels per point of the wide picture
    int side = 0;        ///< of the square, in device pixels
    QPoint corner = {};  ///< of either, in the window
    bool operator==(const TrayLayout&) const = default;
};

/// Whether the wide picture is legible in a tray of this height in device pixels, given the width.
bool isHighEnoughForWide(int height, Size wide, double density);

/// `window` is in device pixels and `wide` in points; `density` is the desktop's device pixels per
/// point, which the wide picture never exceeds.
TrayLayout layOutInTray(QSize window, Size wide, double density);

}  // namespace zephrine
