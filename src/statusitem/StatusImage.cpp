// SPDX-License-Identifier: MIT
#include "statusitem/StatusImage.h"

#include <cmath>

#include "platform/MainThread.h"

namespace zephrine {

namespace {

constexpr double imageHeight = 24;
constexpr double lineHeight = 12;
constexpr double margin = 1;
// Between two lines side by side; about two letters' width.
constexpr double lineGap = 9;
// Room for the dot and the margins beside the text.
constexpr double widthBesideText = 13;
// The widest line that has to fit.
constexpr const char* widthSample = "RAM  24.0G";

Font fontOf(const StatusContent& content) {
    return {FontFamily::monospaced, content.fontSize, FontWeight::medium};
}

double widthOf(const Font& font, const TextMeasure& measure) {
    return std::ceil(measure.sizeOfText(widthSample, font).width) + widthBesideText;
}

}  // namespace

std::string firstLine(const StatusContent& content) {
    return "CPU " + content.cpuText;
}

std::string secondLine(const StatusContent& content) {
    return "RAM " + content.ramText;
}

Image statusImage(const StatusContent& content, const TextMeasure& measure) {
    const Font font = fontOf(content);
    const double width = widthOf(font, measure);
    return {.size = {width, imageHeight},
            .drawingHandler = [content, font, width, mainThread = MainThread()](auto& context) {
                mainThread.requireCurrent();
                const Color text = content.isDark ? Color::white : Color::black;
                context.drawText(firstLine(content), {margin, lineHeight}, font, text);
                context.drawText(secondLine(content), {margin, 0}, font, text);
                context.setFill(content.dot);
                context.fillOval({width - 6, 4, 4, 4});
                return true;
            }};
}

Image lineImage(const StatusContent& content, const TextMeasure& measure) {
    const Font font = fontOf(content);
    const double second =
        margin + std::ceil(measure.sizeOfText(firstLine(content), font).width) + lineGap;
    const double width = second + widthOf(font, measure) - margin;

    return {
        .size = {width, lineHeight},
        .drawingHandler = [content, font, second, width, mainThread = MainThread()](auto& context) {
            mainThread.requireCurrent();
            const Color text = content.isDark ? Color::white : Color::black;
            context.drawText(firstLine(content), {margin, 0}, font, text);
            context.drawText(secondLine(content), {second, 0}, font, text);
            context.setFill(content.dot);
            context.fillOval({width - 6, 4, 4, 4});
            return true;
        }};
}

}  // namespace zephrine
