// SPDX-License-Identifier: MIT
// The form for panels that give every item a square: the same figures drawn for each common size,
// since a panel picks the size that fits rather than have one scaled.
#pragma once

#include "platform/StatusBar.h"
#include "platform/qt/statusitem/bus/NotifierPixmap.h"

namespace zephrine {

/// Ascending by side. Empty when the image knows no square form.
[[nodiscard]] NotifierPixmaps squarePixmaps(const StatusItemImage& image, Appearance appearance);

}  // namespace zephrine
