// SPDX-License-Identifier: MIT
// The wide picture, at the scale that the panel makes the best of.
#include "platform/qt/statusitem/forms/WideForm.h"

#include "platform/qt/drawing/RenderImage.h"

namespace zephrine {

NotifierPixmaps widePixmaps(const StatusItemImage& image, double scale, Appearance appearance) {
    NotifierPixmaps pixmaps;
    addPixmap(pixmaps, renderImage(image.wide, scale, appearance));
    return pixmaps;
}

}  // namespace zephrine
