// SPDX-License-Identifier: MIT
// The picture is the square of 16 points, which has bars in place of figures.
#include "platform/qt/statusitem/forms/LabelForm.h"

#include "platform/qt/drawing/PlainText.h"
#include "platform/qt/drawing/RenderImage.h"

namespace zephrine {

NotifierFace labelledFace(const StatusItemImage& image, Appearance appearance) {
    constexpr double side = 16;
    // GNOME cuts the second of two lines off, where its font is a large one.
    NotifierFace face{.label = fromUTF8(image.text).replace(u'\n', QStringLiteral("  "))};
    if (image.square) {
        addPixmap(face.pixmaps, renderImage(image.square(side), 1, appearance));
    }
    return face;
}

}  // namespace zephrine
