// SPDX-License-Identifier: MIT
// A view whose picture comes from a handler.
#pragma once

#include "platform/macos/widgets/MacView.h"

@class ZephrineCanvasView;

namespace zephrine {

class MacCanvas final : public MacView, public Canvas {
public:
    MacCanvas();

    void setDrawingHandler(std::function<void(DrawingContext&, Size)> handler) override;
    void setNeedsDisplay() override;

private:
    explicit MacCanvas(ZephrineCanvasView* view);

    ZephrineCanvasView* canvasView_;
};

}  // namespace zephrine
