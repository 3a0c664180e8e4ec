// SPDX-License-Identifier: MIT
// The form for bars that scale a picture to the height of their own text, where two lines could not
// be read: both side by side.
#pragma once

#include "platform/StatusBar.h"
#include "platform/qt/statusitem/bus/NotifierPixmap.h"

namespace zephrine {

[[nodiscard]] NotifierPixmaps linePixmaps(const StatusItemImage& image, Appearance appearance);

}  // namespace zephrine
