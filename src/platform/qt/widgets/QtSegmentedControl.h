// SPDX-License-Identifier: MIT
// Segments of which one is selected: a group of radio buttons by name, keyboard and behaviour,
// which only looks like one bar.
#pragma once

#include <QRadioButton>
#include <vector>

#include "platform/qt/theme/SystemAppearance.h"
#include "platform/qt/widgets/QtView.h"

namespace zephrine {

class QtSegmentedControl final : public QtView, public SegmentedControl {
public:
    /// `appearance` outlives the control.
    QtSegmentedControl(const SystemAppearance& appearance, const std::vector<std::string>& labels);

    void setSelectedSegment(int index) override;
    [[nodiscard]] int selectedSegment() const override;
    void setAction(std::function<void()> action) override;

private:
    std::vector<QRadioButton*> segments_;  // children of the bar
    std::function<void()> action_;
};

}  // namespace zephrine
