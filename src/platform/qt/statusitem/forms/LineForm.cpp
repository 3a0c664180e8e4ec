// SPDX-License-Identifier: MIT
// The wide picture, cut between its two lines.
#include "platform/qt/statusitem/forms/LineForm.h"

#include <QPainter>

#include "platform/qt/drawing/RenderImage.h"

namespace zephrine {

namespace {

constexpr double kScale = 4;  // bars scale down well, and their icons are 16 to 48 pixels high
constexpr int kGap = 9;       // points between the lines, about two letters' width

/// Without the columns at the right that nothing is drawn in.
QImage withoutRoomAtTheRight(const QImage& picture) {
    for (int right = picture.width(); right > 0; --right) {
        for (int y = 0; y < picture.height(); ++y) {
            if (qAlpha(picture.pixel(right - 1, y)) != 0) {
                return picture.copy(0, 0, right, picture.height());
            }
        }
    }
    return {};
}

}  // namespace

NotifierPixmaps linePixmaps(const StatusItemImage& image, Appearance appearance) {
    QImage both = renderImage(image.wide, kScale, appearance);
    both.setDevicePixelRatio(1);
    const int height = both.height() / 2;
    const QImage first = withoutRoomAtTheRight(both.copy(0, 0, both.width(), height));
    const int start = first.isNull() ? 0 : first.width() + static_cast<int>(kGap * kScale);
    QImage line(start + both.width(), height, QImage::Format_ARGB32_Premultiplied);
    NotifierPixmaps pixmaps;
    if (!line.isNull()) {
        line.fill(Qt::transparent);
        QPainter painter(&line);
        painter.drawImage(0, 0, first);
        painter.drawImage(start, 0, both, 0, height, both.width(), height);
        painter.end();
        addPixmap(pixmaps, line);
    }
    return pixmaps;
}

}  // namespace zephrine
