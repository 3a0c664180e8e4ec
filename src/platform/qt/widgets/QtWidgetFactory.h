// SPDX-License-Identifier: MIT
// Makes the controls of this back end.
#pragma once

#include "platform/Widgets.h"
#include "platform/qt/theme/SystemAppearance.h"

namespace zephrine {

class QtWidgetFactory final : public WidgetFactory {
public:
    /// `appearance` outlives the factory and all that it makes.
    explicit QtWidgetFactory(const SystemAppearance& appearance) : appearance_(appearance) {}

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

private:
    const SystemAppearance& appearance_;
};

}  // namespace zephrine
