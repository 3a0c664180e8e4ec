// SPDX-License-Identifier: MIT
// A drawing context over a QPainter. The one place of the drawing code where "y upwards" becomes
// Qt's "y downwards".
#pragma once

#include <QColor>
#include <QPainter>

#include "platform/Drawing.h"

namespace zephrine {

class QtDrawingContext final : public DrawingContext {
public:
    /// Draws on `painter`, whose origin is the upper left corner of a surface `height` points high.
    QtDrawingContext(QPainter& painter, double height, Appearance appearance);

    void setFill(Color color) override;
    void setStroke(Color color) override;
    void fillOval(const Rect& rect) override;
    void fillRect(const Rect& rect) override;
    void stroke(const Path& path) override;
    void drawText(std::string_view text, Point origin, const Font& font, Color color) override;

private:
    [[nodiscard]] QPointF flipped(Point point) const;
    [[nodiscard]] QRectF flipped(const Rect& rect) const;

    QPainter& painter_;
    double height_;
    Appearance appearance_;
    QColor fill_;
    QColor stroke_;
};

}  // namespace zephrine
