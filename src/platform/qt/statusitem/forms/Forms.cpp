// SPDX-License-Identifier: MIT
#include "platform/qt/statusitem/forms/Forms.h"

#include <array>

#include "platform/qt/drawing/PlainText.h"
#include "platform/qt/drawing/RenderImage.h"

namespace zephrine {

namespace {

// 16, 22 and 24 are what panels use; 32, 44 and 48 are the same on screens of twice the density, 28
// and 33 the usual 22 at scales of 1.25 and 1.5, and 64 serves the panels that want something
// larger. All of them, since a panel picks the size that fits rather than have one scaled.
constexpr std::array squareSides{16, 22, 24, 28, 32, 33, 44, 48, 64};
// Beside a label.
constexpr int smallestSide = 16;
// For panels that scale to their height: down looks better than up.
constexpr double wideScale = 2;
// Bars of one line's height, whose icons are 16 to 48 pixels high.
constexpr double lineScale = 4;

void addSquare(NotifierPixmaps& pixmaps, const StatusItemImage& image, int side) {
    if (image.square) {
        addPixmap(pixmaps, renderImage(image.square(side), 1, image.appearance));
    }
}

/// Ascending by side.
NotifierPixmaps squares(const StatusItemImage& image) {
    NotifierPixmaps pixmaps;
    for (const int side : squareSides) {
        addSquare(pixmaps, image, side);
    }
    return pixmaps;
}

NotifierPixmaps wide(const StatusItemImage& image) {
    NotifierPixmaps pixmaps;
    addPixmap(pixmaps, renderImage(image.wide, wideScale, image.appearance));
    return pixmaps;
}

NotifierPixmaps line(const StatusItemImage& image) {
    NotifierPixmaps pixmaps;
    if (image.line) {
        addPixmap(pixmaps, renderImage(image.line(), lineScale, image.appearance));
    }
    return pixmaps;
}

/// The figures as text.
NotifierFace labelled(const StatusItemImage& image) {
    // GNOME cuts the second of two lines off, where its font is a large one.
    NotifierFace face{.label = fromUTF8(image.text).replace(u'\n', QStringLiteral("  "))};
    addSquare(face.pixmaps, image, smallestSide);
    return face;
}

}  // namespace

NotifierFace faceForHost(HostForm form, const StatusItemImage& image, PictureFiles& files) {
    switch (form) {
        case HostForm::wideDoubled:
            return {.pixmaps = wide(image)};
        case HostForm::line:
            return {.pixmaps = line(image)};
        case HostForm::wideFile:
            if (const QString file = files.write(image.wide, image.appearance); !file.isEmpty()) {
                return {.iconName = file};
            }
            [[fallthrough]];
        case HostForm::labelled:
            return labelled(image);
        case HostForm::squares:
            return {.pixmaps = squares(image)};
        case HostForm::multipliedSquares:
            return {.pixmaps = multipliedByOpacity(squares(image))};
        case HostForm::mixed:
            return {.pixmaps = squares(image) + wide(image)};
    }
    return {};
}

}  // namespace zephrine
