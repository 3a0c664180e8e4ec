// SPDX-License-Identifier: MIT
// The status item's figures for panels that force every item into a square.
#pragma once

#include "platform/Drawing.h"
#include "statusitem/StatusImage.h"

namespace zephrine {

/// A picture of `side` by `side` points: the CPU figure over the RAM figure, without their units,
/// and the dot; where two lines of digits would not be legible, two bars and the dot.
Image squareImage(const StatusContent& content, double side, const TextMeasure& measure);

}  // namespace zephrine
