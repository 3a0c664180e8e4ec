// SPDX-License-Identifier: MIT
#include "platform/macos/drawing/MacDrawing.h"

#include "platform/macos/MacGeometry.h"
#include "platform/macos/MacString.h"
#include "platform/macos/drawing/MacColors.h"
#include "platform/macos/drawing/MacFonts.h"

namespace zephrine {

void MacDrawingContext::setFill(Color color) {
    [nsColor(color) setFill];
}

void MacDrawingContext::setStroke(Color color) {
    [nsColor(color) setStroke];
}

void MacDrawingContext::fillOval(const Rect& rect) {
    [[NSBezierPath bezierPathWithOvalInRect:nsRect(rect)] fill];
}

void MacDrawingContext::fillRect(const Rect& rect) {
    // The plain NSRectFill copies, which would punch a hole where the colour is translucent.
    NSRectFillUsingOperation(nsRect(rect), NSCompositingOperationSourceOver);
}

void MacDrawingContext::stroke(const Path& path) {
    NSBezierPath* native = [NSBezierPath bezierPath];
    for (const Path::Element& element : path.elements()) {
        // A line needs a current point: without one AppKit raises an exception.
        if (element.verb == Path::Verb::move || native.isEmpty) {
            [native moveToPoint:nsPoint(element.point)];
        } else {
            [native lineToPoint:nsPoint(element.point)];
        }
    }
    native.lineWidth = path.lineWidth;
    native.lineJoinStyle =
        path.lineJoin == LineJoin::round ? NSLineJoinStyleRound : NSLineJoinStyleMiter;
    [native stroke];
}

void MacDrawingContext::drawText(std::string_view text, Point origin, const Font& font,
                                 Color color) {
    [nsLine(text) drawAtPoint:nsPoint(origin)
               withAttributes:@{
                   NSFontAttributeName : nsFont(font),
                   NSForegroundColorAttributeName : nsColor(color)
               }];
}

Size MacTextMeasure::sizeOfText(std::string_view text, const Font& font) const {
    return fromNSSize([nsLine(text) sizeWithAttributes:@{NSFontAttributeName : nsFont(font)}]);
}

NSImage* nsImage(const Image& image) {
    // The block keeps the copy, not the caller's image: it may be drawn long after this returns,
    // more than once, at any scale.
    const auto drawingHandler = image.drawingHandler;
    NSImage* native = [NSImage imageWithSize:nsSize(image.size)
                                     flipped:NO
                              drawingHandler:^BOOL(NSRect /*whole*/) {
                                MacDrawingContext context;
                                return drawingHandler(context) ? YES : NO;
                              }];
    // A template would be drawn in one colour. The setter by name: the property is called
    // `template`, which is a keyword here.
    [native setTemplate:NO];
    return native;
}

}  // namespace zephrine
