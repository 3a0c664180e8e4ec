// SPDX-License-Identifier: MIT
// A segmented control of which one segment is selected.
#pragma once

#include "platform/macos/MacAction.h"
#include "platform/macos/widgets/MacView.h"

namespace zephrine {

class MacSegmentedControl final : public MacView, public SegmentedControl {
public:
    explicit MacSegmentedControl(const std::vector<std::string>& labels);

    void setSelectedSegment(int index) override;
    [[nodiscard]] int selectedSegment() const override;
    void setAction(std::function<void()> action) override;

private:
    MacSegmentedControl(NSSegmentedControl* control, ZephrineAction* action);

    NSSegmentedControl* control_;
    ZephrineAction* action_;
};

}  // namespace zephrine
