// SPDX-License-Identifier: MIT
// The handler paints straight onto the window's surface, clipped to the view.
#include "platform/qt/widgets/QtCanvas.h"

#include <QPainter>
#include <utility>

#include "platform/qt/drawing/QtDrawingContext.h"
#include "platform/qt/widgets/Accessibility.h"

namespace zephrine {

class CanvasWidget final : public QWidget {
public:
    explicit CanvasWidget(const SystemAppearance& appearance) : appearance_(appearance) {}

    std::function<void(DrawingContext&, Size)> handler;

protected:
    void paintEvent(QPaintEvent* /*event*/) override {
        if (handler) {
            QPainter painter(this);
            QtDrawingContext context(painter, height(), appearance_.current());
            handler(context, Size{static_cast<double>(width()), static_cast<double>(height())});
        }
    }

private:
    const SystemAppearance& appearance_;
};

QtCanvas::QtCanvas(const SystemAppearance& appearance)
    : QtView(std::make_unique<CanvasWidget>(appearance)),
      canvas_(static_cast<CanvasWidget&>(widget())) {
    setAccessibleRole(widget(), QAccessible::Graphic);
}

void QtCanvas::setDrawingHandler(std::function<void(DrawingContext&, Size)> handler) {
    canvas_.handler = std::move(handler);
    canvas_.update();
}

void QtCanvas::setNeedsDisplay() {
    canvas_.update();
}

}  // namespace zephrine
