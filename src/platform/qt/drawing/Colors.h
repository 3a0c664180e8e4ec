// SPDX-License-Identifier: MIT
// What the named colours look like, in the light and in the dark appearance. All are opaque: a
// translucent stroke costs far more to paint, so the mix with the background is made beforehand.
#pragma once

#include <QColor>

#include "platform/Color.h"

namespace zephrine {

QColor resolve(Color color, Appearance appearance);

/// The surface that windows, the popover and everything on them stand on.
QColor windowBackground(Appearance appearance);

}  // namespace zephrine
