// SPDX-License-Identifier: MIT
#include "statusitem/SquareImage.h"

#include <algorithm>
#include <string>

#include "platform/MainThread.h"

namespace zephrine {

namespace {

// Below this side a line of digits would be under seven pixels high.
constexpr double smallestLegibleSide = 18;
// Height of a digit in units of the font size; typical of sans-serif faces.
constexpr double digitHeight = 0.73;
// The most that a line usually holds. Sizing by it keeps the digits from changing size between
// one and two of them.
constexpr const char* usualFigure = "88";

struct Line {
    std::string figure;
    double left;
    double bottom;
    double width;
    double height;
};

Color textColor(const StatusContent& content) {
    return content.isDark ? Color::white : Color::black;
}

/// The number in a padded text such as " 42%" or " 7.9G".
std::string figure(const std::string& text) {
    const auto first = text.find_first_not_of(' ');
    const auto last = text.find_last_not_of(" %G");
    return first == std::string::npos ? std::string() : text.substr(first, last + 1 - first);
}

void drawLine(DrawingContext& context, const Line& line, Color color, const TextMeasure& measure) {
    Font font{FontFamily::monospacedDigit, line.height / digitHeight, FontWeight::semibold};
    const double widest = std::max(measure.sizeOfText(line.figure, font).width,
                                   measure.sizeOfText(usualFigure, font).width);
    font.size *= std::min(1.0, line.width / widest);
    const Size box = measure.sizeOfText(line.figure, font);
    context.drawText(line.figure, {line.left, line.bottom + (line.height - box.height) / 2}, font,
                     color);
}

void drawFigures(DrawingContext& context, const StatusContent& content, double side,
                 const TextMeasure& measure) {
    const double dot = std::max(4.0, side / 5.5);
    const double gap = side / 22;
    const double height = (side - 3 * gap) / 2;
    const Line cpu{figure(content.cpuText), gap, height + 2 * gap, side - 2 * gap, height};
    const Line ram{figure(content.ramText), gap, gap, side - dot - 2 * gap, height};
    drawLine(context, cpu, textColor(content), measure);
    drawLine(context, ram, textColor(content), measure);
    context.setFill(content.dot);
    context.fillOval({side - dot, gap, dot, dot});
}

void drawBar(DrawingContext& context, const Rect& track, std::optional<double> percent,
             Color color) {
    context.setFill(Color::quaternaryLabelColor);
    context.fillRect(track);
    if (percent) {
        const double share = std::clamp(*percent, 0.0, 100.0) / 100;
        context.setFill(color);
        context.fillRect({track.x, track.y, track.width, track.height * share});
    }
}

void drawBars(DrawingContext& context, const StatusContent& content, double side) {
    const double unit = side / 16;
    drawBar(context, {unit, unit, 4 * unit, 14 * unit}, content.cpuPercent, textColor(content));
    drawBar(context, {6 * unit, unit, 4 * unit, 14 * unit}, content.ramPercent, textColor(content));
    context.setFill(content.dot);
    context.fillOval({11 * unit, unit, 5 * unit, 5 * unit});
}

}  // namespace

Image squareImage(const StatusContent& content, double side, const TextMeasure& measure) {
    return {.size = {side, side},
            .drawingHandler = [content, side, &measure, mainThread = MainThread()](auto& context) {
                mainThread.requireCurrent();
                if (side < smallestLegibleSide) {
                    drawBars(context, content, side);
                } else {
                    drawFigures(context, content, side, measure);
                }
                return true;
            }};
}

}  // namespace zephrine
