// SPDX-License-Identifier: MIT
// A picture that draws itself, made to draw on a QImage.
#include "platform/qt/drawing/RenderImage.h"

#include <QPainter>
#include <cmath>

#include "platform/qt/drawing/QtDrawingContext.h"

namespace zephrine {

namespace {

constexpr double longestSide = 4096;  // device pixels: far above any icon

/// The side in device pixels; 0 for a length that no picture has.
int deviceLength(double points, double scale) {
    // The subtraction keeps 30.000000000000004 from becoming 31.
    const double pixels = std::ceil(points * scale - 1e-6);
    return pixels >= 1 && pixels <= longestSide ? static_cast<int>(pixels) : 0;
}

}  // namespace

QImage renderImage(const Image& image, double scale, Appearance appearance) {
    const int width = deviceLength(image.size.width, scale);
    const int height = deviceLength(image.size.height, scale);
    if (width == 0 || height == 0 || !image.drawingHandler) {
        return {};
    }
    QImage pixels(width, height, QImage::Format_ARGB32_Premultiplied);
    pixels.fill(Qt::transparent);
    QPainter painter(&pixels);
    painter.scale(scale, scale);  // by the picture's own ratio, Qt never scales down
    QtDrawingContext context(painter, image.size.height, appearance);
    const bool drawn = image.drawingHandler(context);
    painter.end();
    pixels.setDevicePixelRatio(scale);
    return drawn ? pixels : QImage();
}

}  // namespace zephrine
