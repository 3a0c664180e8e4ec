// SPDX-License-Identifier: MIT
#include "platform/macos/widgets/MacCanvas.h"

#include <utility>

#include "platform/macos/MacGeometry.h"
#include "platform/macos/drawing/MacDrawing.h"

@interface ZephrineCanvasView : NSView
- (void)setDrawingHandler:(std::function<void(zephrine::DrawingContext&, zephrine::Size)>)handler;
@end

@implementation ZephrineCanvasView {
    std::function<void(zephrine::DrawingContext&, zephrine::Size)> _drawingHandler;
}

- (void)setDrawingHandler:(std::function<void(zephrine::DrawingContext&, zephrine::Size)>)handler {
    _drawingHandler = std::move(handler);
}

// The whole view, whatever part of it is dirty: AppKit clips. The current appearance is the view's
// during this call, so that the dynamic colours come out right.
- (void)drawRect:(NSRect)__attribute__((unused))dirty {
    if (_drawingHandler) {
        zephrine::MacDrawingContext context;
        _drawingHandler(context, zephrine::fromNSSize(self.bounds.size));
    }
}

@end

namespace zephrine {

MacCanvas::MacCanvas() : MacCanvas([[ZephrineCanvasView alloc] initWithFrame:NSRect{}]) {}

MacCanvas::MacCanvas(ZephrineCanvasView* view) : MacView(view), canvasView_(view) {
    canvasView_.accessibilityRole = NSAccessibilityImageRole;
}

void MacCanvas::setDrawingHandler(std::function<void(DrawingContext&, Size)> handler) {
    [canvasView_ setDrawingHandler:std::move(handler)];
    setNeedsDisplay();
}

void MacCanvas::setNeedsDisplay() {
    canvasView_.needsDisplay = YES;
}

}  // namespace zephrine
