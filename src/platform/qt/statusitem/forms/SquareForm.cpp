// SPDX-License-Identifier: MIT
// The sizes: 16, 22 and 24 are what panels use; 32, 44 and 48 are the same on screens of twice the
// density, 28 and 33 the usual 22 at scales of 1.25 and 1.5, and 64 serves the panels that want
// something larger.
#include "platform/qt/statusitem/forms/SquareForm.h"

#include <array>

#include "platform/qt/drawing/RenderImage.h"

namespace zephrine {

namespace {

constexpr std::array kSides{16, 22, 24, 28, 32, 33, 44, 48, 64};

}  // namespace

NotifierPixmaps squarePixmaps(const StatusItemImage& image, Appearance appearance) {
    NotifierPixmaps pixmaps;
    if (!image.square) {
        return pixmaps;
    }
    for (const int side : kSides) {
        addPixmap(pixmaps, renderImage(image.square(side), 1, appearance));
    }
    return pixmaps;
}

}  // namespace zephrine
