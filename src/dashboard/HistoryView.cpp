// SPDX-License-Identifier: MIT
#include "dashboard/HistoryView.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <utility>

namespace zephrine {

namespace {

// Space kept free above 100 % and below 0 %, in points.
constexpr double margin = 2;
constexpr double gridWidth = 0.5;
constexpr double seriesWidth = 1.7;
// Two points this far apart, in seconds, are not joined: nobody knows what happened in between.
constexpr double gapSeconds = 12;

struct Series {
    std::optional<double> HistorySample::*value;
    Color color;
};

// In drawing order: later ones lie on top.
constexpr std::array<Series, 3> allSeries{{
    {&HistorySample::cpu, Color::systemBlueColor},
    {&HistorySample::ram, Color::systemGreenColor},
    {&HistorySample::gpu, Color::systemPurpleColor},
}};

double yOf(double fraction, Size size) {
    return fraction * (size.height - 2 * margin) + margin;
}

double xOf(double time, double latest, Size size) {
    return std::max(0.0, (time - latest + historySeconds) / historySeconds) * size.width;
}

/// 0 to 1; what is not a number counts as 0.
double fractionOf(double percent) {
    return percent > 0 ? std::min(percent, 100.0) / 100 : 0;
}

void drawGrid(DrawingContext& context, Size size) {
    context.setStroke(Color::quaternaryLabelColor);
    for (const double fraction : {0.0, 0.5, 1.0}) {
        Path line;
        line.lineWidth = gridWidth;
        line.moveTo({0, yOf(fraction, size)});
        line.lineTo({size.width, yOf(fraction, size)});
        context.stroke(line);
    }
}

Path pathOf(const Series& series, const std::vector<HistorySample>& samples, Size size) {
    Path path;
    path.lineWidth = seriesWidth;
    path.lineJoin = LineJoin::round;
    const double latest = samples.back().time;
    const HistorySample* previous = nullptr;
    for (const HistorySample& sample : samples) {
        const auto& value = sample.*series.value;
        if (!value) {
            previous = nullptr;
            continue;
        }
        const Point point{xOf(sample.time, latest, size), yOf(fractionOf(*value), size)};
        if (previous != nullptr && sample.time - previous->time < gapSeconds) {
            path.lineTo(point);
        } else {
            path.moveTo(point);
        }
        previous = &sample;
    }
    return path;
}

}  // namespace

HistoryView::HistoryView(WidgetFactory& widgets) : canvas_(widgets.makeCanvas()) {
    canvas_->setDrawingHandler([this](DrawingContext& context, Size size) { draw(context, size); });
}

void HistoryView::setSamples(std::vector<HistorySample> samples) {
    samples_ = std::move(samples);
    canvas_->setNeedsDisplay();
}

void HistoryView::draw(DrawingContext& context, Size size) const {
    drawGrid(context, size);
    if (samples_.size() < 2) {
        return;
    }
    for (const Series& series : allSeries) {
        context.setStroke(series.color);
        context.stroke(pathOf(series, samples_, size));
    }
}

}  // namespace zephrine
