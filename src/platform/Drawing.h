// SPDX-License-Identifier: MIT
// Drawing: the canvas that pictures and views paint on, and images that paint themselves.
// Everything here happens on the main thread. Strings are UTF-8 and are drawn as plain text.
#pragma once

#include <functional>
#include <string_view>
#include <vector>

#include "platform/Color.h"
#include "platform/Font.h"
#include "platform/Geometry.h"

namespace zephrine {

enum class LineJoin { miter, round };

/// A path of straight lines: each stretch begins with a move and goes on with lines.
class Path {
public:
    enum class Verb { move, line };
    struct Element {
        Verb verb;
        Point point;
        bool operator==(const Element&) const = default;
    };

    void moveTo(Point point) { elements_.push_back({Verb::move, point}); }
    void lineTo(Point point) { elements_.push_back({Verb::line, point}); }
    [[nodiscard]] const std::vector<Element>& elements() const { return elements_; }

    double lineWidth = 1;
    LineJoin lineJoin = LineJoin::miter;

private:
    std::vector<Element> elements_;
};

/// What a drawing handler paints on. Valid only during the call that hands it over.
class DrawingContext {
public:
    virtual ~DrawingContext() = default;

    virtual void setFill(Color color) = 0;
    virtual void setStroke(Color color) = 0;
    virtual void fillOval(const Rect& rect) = 0;
    virtual void fillRect(const Rect& rect) = 0;
    /// Lines that go on from each other are joined as the path says; the ends of a stretch are cut
    /// off where it ends.
    virtual void stroke(const Path& path) = 0;
    /// One line of text whose box (ascent to descent, as `TextMeasure` measures it) has its lower
    /// left corner at `origin`.
    virtual void drawText(std::string_view text, Point origin, const Font& font, Color color) = 0;
};

/// A picture that is drawn on demand, on the main thread, at whatever scale and as often as the
/// system needs it. The handler draws from the values that it captured and from nothing else; true
/// means drawn.
struct Image {
    Size size;
    std::function<bool(DrawingContext&)> drawingHandler;
};

/// Measures text without drawing it.
class TextMeasure {
public:
    virtual ~TextMeasure() = default;

    /// The box of one line of `text`: advance width, and ascent plus descent.
    [[nodiscard]] virtual Size sizeOfText(std::string_view text, const Font& font) const = 0;
};

}  // namespace zephrine
