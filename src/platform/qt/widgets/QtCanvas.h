// SPDX-License-Identifier: MIT
// A view whose picture comes from a handler.
#pragma once

#include "platform/qt/theme/SystemAppearance.h"
#include "platform/qt/widgets/QtView.h"

namespace zephrine {

class CanvasWidget;

class QtCanvas final : public QtView, public Canvas {
public:
    /// `appearance` outlives the canvas.
    explicit QtCanvas(const SystemAppearance& appearance);

    void setDrawingHandler(std::function<void(DrawingContext&, Size)> handler) override;
    void setNeedsDisplay() override;

private:
    CanvasWidget& canvas_;
};

}  // namespace zephrine
