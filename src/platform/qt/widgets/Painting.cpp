// SPDX-License-Identifier: MIT
// Boxes and rings.
#include "platform/qt/widgets/Painting.h"

namespace zephrine {

void paintBox(QPainter& painter, const QRectF& box, double radius, const QColor& fill,
              const QColor& edge) {
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(edge, 1));
    painter.setBrush(fill);
    painter.drawRoundedRect(box.adjusted(0.5, 0.5, -0.5, -0.5), radius, radius);
}

void paintFocusRing(QPainter& painter, const QRectF& box, double radius, const QColor& color) {
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(color, 2));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(box.adjusted(1, 1, -1, -1), radius, radius);
}

bool showsFocus(const QWidget& widget) {
    return widget.hasFocus() && widget.window()->testAttribute(Qt::WA_KeyboardFocusChange);
}

}  // namespace zephrine
