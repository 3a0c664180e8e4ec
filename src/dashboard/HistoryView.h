// SPDX-License-Identifier: MIT
// The graph of the last five minutes: CPU, memory and GPU as three lines over a faint grid.
#pragma once

#include <memory>
#include <vector>

#include "platform/Widgets.h"
#include "sampling/History.h"

namespace zephrine {

class HistoryView {
public:
    explicit HistoryView(WidgetFactory& widgets);

    /// The samples to draw, oldest first. Setting them redraws the view.
    void setSamples(std::vector<HistorySample> samples);
    [[nodiscard]] const std::vector<HistorySample>& samples() const { return samples_; }

    /// Paints the whole graph for a view of `size` points.
    void draw(DrawingContext& context, Size size) const;

    [[nodiscard]] Canvas& canvas() { return *canvas_; }

private:
    std::unique_ptr<Canvas> canvas_;
    std::vector<HistorySample> samples_;
};

}  // namespace zephrine
