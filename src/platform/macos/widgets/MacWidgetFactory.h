// SPDX-License-Identifier: MIT
// Makes AppKit's controls.
#pragma once

#include "platform/Widgets.h"

namespace zephrine {

class MacWidgetFactory final : public WidgetFactory {
public:
    std::unique_ptr<View> makeView(const Rect& frame) override;
    std::unique_ptr<Label> makeLabel(const std::string& text) override;
    std::unique_ptr<ImageView> makeImageView() override;
    std::unique_ptr<Button> makeButton(const std::string& title) override;
    std::unique_ptr<CheckBox> makeCheckBox(const std::string& title) override;
    std::unique_ptr<PopUpButton> makePopUpButton(const std::vector<std::string>& titles) override;
    std::unique_ptr<SegmentedControl> makeSegmentedControl(
        const std::vector<std::string>& labels) override;
    std::unique_ptr<View> makeSeparator() override;
    std::unique_ptr<Canvas> makeCanvas() override;
};

}  // namespace zephrine
