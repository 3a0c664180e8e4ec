// SPDX-License-Identifier: MIT
// Turns a picture that draws itself into pixels.
#pragma once

#include <QImage>

#include "platform/Drawing.h"

namespace zephrine {

/// `image` at `scale` device pixels per point, in ARGB32_Premultiplied on a clear background, each
/// side rounded up to whole device pixels; its devicePixelRatio is `scale`. A null image when the
/// handler draws nothing, or when the sizes are not those of a picture.
QImage renderImage(const Image& image, double scale, Appearance appearance);

}  // namespace zephrine
