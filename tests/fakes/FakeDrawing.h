// SPDX-License-Identifier: MIT
// A canvas that records what is drawn on it, and a measure with characters of a known width.
#pragma once

#include <functional>
#include <string>

#include "fakes/CallLog.h"
#include "platform/Drawing.h"

namespace zephrine {

class RecordingContext : public DrawingContext {
public:
    struct Text {
        std::string text;
        Point origin;
        Font font;
        Color color;
    };
    struct Stroke {
        Path path;
        Color color;
    };
    struct Shape {
        Rect rect;
        Color color;
    };
    std::vector<Text> texts;
    std::vector<Stroke> strokes;
    std::vector<Shape> ovals;
    std::vector<Shape> rects;
    CallLog calls;  ///< what was drawn, of all kinds, in its order

    void setFill(Color color) override { fill_ = color; }
    void setStroke(Color color) override { stroke_ = color; }
    void fillOval(const Rect& rect) override {
        calls.note("fillOval");
        ovals.push_back({rect, fill_});
    }
    void fillRect(const Rect& rect) override { rects.push_back({rect, fill_}); }
    void stroke(const Path& path) override { strokes.push_back({path, stroke_}); }
    void drawText(std::string_view text, Point origin, const Font& font, Color color) override {
        calls.note("drawText " + std::string(text));
        texts.push_back({std::string(text), origin, font, color});
    }

private:
    Color fill_ = Color::black;
    Color stroke_ = Color::black;
};

/// Every byte is 0.61 times the font size wide: enough to tell sizes and lengths apart.
class FakeTextMeasure : public TextMeasure {
public:
    mutable int measurements = 0;
    std::function<void()> whileMeasuring;

    [[nodiscard]] Size sizeOfText(std::string_view text, const Font& font) const override {
        ++measurements;
        if (whileMeasuring) {
            whileMeasuring();
        }
        return {static_cast<double>(text.size()) * font.size * 0.61, font.size * 1.2};
    }
};

}  // namespace zephrine
