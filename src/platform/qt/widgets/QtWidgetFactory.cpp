// SPDX-License-Identifier: MIT
// One maker a control.
#include "platform/qt/widgets/QtWidgetFactory.h"

#include "platform/qt/widgets/QtButton.h"
#include "platform/qt/widgets/QtCanvas.h"
#include "platform/qt/widgets/QtCheckBox.h"
#include "platform/qt/widgets/QtImageView.h"
#include "platform/qt/widgets/QtLabel.h"
#include "platform/qt/widgets/QtPopUpButton.h"
#include "platform/qt/widgets/QtSegmentedControl.h"
#include "platform/qt/widgets/QtSeparator.h"

namespace zephrine {

std::unique_ptr<View> QtWidgetFactory::makeView(const Rect& frame) {
    auto view = std::make_unique<QtView>();
    view->setFrame(frame);
    return view;
}

std::unique_ptr<Label> QtWidgetFactory::makeLabel(const std::string& text) {
    auto label = std::make_unique<QtLabel>(appearance_);
    label->setStringValue(text);
    return label;
}

std::unique_ptr<ImageView> QtWidgetFactory::makeImageView() {
    return std::make_unique<QtImageView>();
}

std::unique_ptr<Button> QtWidgetFactory::makeButton(const std::string& title) {
    return std::make_unique<QtButton>(appearance_, title);
}

std::unique_ptr<CheckBox> QtWidgetFactory::makeCheckBox(const std::string& title) {
    return std::make_unique<QtCheckBox>(appearance_, title);
}

std::unique_ptr<PopUpButton> QtWidgetFactory::makePopUpButton(
    const std::vector<std::string>& titles) {
    return std::make_unique<QtPopUpButton>(appearance_, titles);
}

std::unique_ptr<SegmentedControl> QtWidgetFactory::makeSegmentedControl(
    const std::vector<std::string>& labels) {
    return std::make_unique<QtSegmentedControl>(appearance_, labels);
}

std::unique_ptr<View> QtWidgetFactory::makeSeparator() {
    return std::make_unique<QtSeparator>(appearance_);
}

std::unique_ptr<Canvas> QtWidgetFactory::makeCanvas() {
    return std::make_unique<QtCanvas>(appearance_);
}

}  // namespace zephrine
