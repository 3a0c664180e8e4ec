// SPDX-License-Identifier: MIT
#include "statusitem/StatusImage.h"

#include <cmath>

#include "platform/MainThread.h"

namespace zephrine {

namespace {

constexpr double imageHeight = 24;
// Room for the dot and the margins beside the text.
constexpr double widthBesideText = 13;
// The widest line that has to fit.
constexpr const char* widthSample = "RAM  24.0G";

}  // namespace

std::string firstLine(const StatusContent& content) {
    return "CPU " + content.cpuText;
}

std::string secondLine(const StatusContent& content) {
    return "RAM " + content.ramText;
}

Image statusImage(const StatusContent& content, const TextMeasure& measure) {
    const Font font{FontFamily::monospaced, content.fontSize, FontWeight::medium};
    const double textWidth = measure.sizeOfText(widthSample, font).width;
    const double width = std::ceil(textWidth) + widthBesideText;

    return {.size = {width, imageHeight},
            .drawingHandler = [content, font, width, mainThread = MainThread()](auto& context) {
                mainThread.requireCurrent();
                const Color text = content.isDark ? Color::white : Color::black;
                context.drawText(firstLine(content), {1, 12}, font, text);
                context.drawText(secondLine(content), {1, 0}, font, text);
                context.setFill(content.dot);
                context.fillOval({width - 6, 4, 4, 4});
                return true;
            }};
}

}  // namespace zephrine
