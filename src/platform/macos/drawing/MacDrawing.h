// SPDX-License-Identifier: MIT
// Drawing into the platform's current graphics context, images that draw themselves, and the
// measuring of text.
#pragma once

#include "platform/Drawing.h"

#import <AppKit/AppKit.h>

namespace zephrine {

/// Paints on whatever graphics context is current while it lives.
class MacDrawingContext final : public DrawingContext {
public:
    void setFill(Color color) override;
    void setStroke(Color color) override;
    void fillOval(const Rect& rect) override;
    void fillRect(const Rect& rect) override;
    void stroke(const Path& path) override;
    void drawText(std::string_view text, Point origin, const Font& font, Color color) override;
};

class MacTextMeasure final : public TextMeasure {
public:
    [[nodiscard]] Size sizeOfText(std::string_view text, const Font& font) const override;
};

/// An image that calls a copy of `image`'s handler whenever it is drawn.
NSImage* nsImage(const Image& image);

}  // namespace zephrine
