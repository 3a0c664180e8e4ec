// SPDX-License-Identifier: MIT
// The form for panels that leave a wide picture wide: the picture itself.
#pragma once

#include "platform/StatusBar.h"
#include "platform/qt/statusitem/bus/NotifierPixmap.h"

namespace zephrine {

/// `scale` is pixels per point.
[[nodiscard]] NotifierPixmaps widePixmaps(const StatusItemImage& image, double scale,
                                          Appearance appearance);

}  // namespace zephrine
