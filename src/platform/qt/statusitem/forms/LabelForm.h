// SPDX-License-Identifier: MIT
// The form for panels that make every picture a small square, but set text beside it: the text has
// the figures.
#pragma once

#include "platform/StatusBar.h"
#include "platform/qt/statusitem/bus/NotifierFace.h"

namespace zephrine {

[[nodiscard]] NotifierFace labelledFace(const StatusItemImage& image, Appearance appearance);

}  // namespace zephrine
