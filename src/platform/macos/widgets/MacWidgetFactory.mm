// SPDX-License-Identifier: MIT
#include "platform/macos/widgets/MacWidgetFactory.h"

#include "platform/macos/MacGeometry.h"
#include "platform/macos/widgets/MacButton.h"
#include "platform/macos/widgets/MacCanvas.h"
#include "platform/macos/widgets/MacCheckBox.h"
#include "platform/macos/widgets/MacImageView.h"
#include "platform/macos/widgets/MacLabel.h"
#include "platform/macos/widgets/MacPopUpButton.h"
#include "platform/macos/widgets/MacSegmentedControl.h"

namespace zephrine {

std::unique_ptr<View> MacWidgetFactory::makeView(const Rect& frame) {
    return std::make_unique<MacView>([[NSView alloc] initWithFrame:nsRect(frame)]);
}

std::unique_ptr<Label> MacWidgetFactory::makeLabel(const std::string& text) {
    return std::make_unique<MacLabel>(text);
}

std::unique_ptr<ImageView> MacWidgetFactory::makeImageView() {
    return std::make_unique<MacImageView>();
}

std::unique_ptr<Button> MacWidgetFactory::makeButton(const std::string& title) {
    return std::make_unique<MacButton>(title);
}

std::unique_ptr<CheckBox> MacWidgetFactory::makeCheckBox(const std::string& title) {
    return std::make_unique<MacCheckBox>(title);
}

std::unique_ptr<PopUpButton> MacWidgetFactory::makePopUpButton(
    const std::vector<std::string>& titles) {
    return std::make_unique<MacPopUpButton>(titles);
}

std::unique_ptr<SegmentedControl> MacWidgetFactory::makeSegmentedControl(
    const std::vector<std::string>& labels) {
    return std::make_unique<MacSegmentedControl>(labels);
}

std::unique_ptr<View> MacWidgetFactory::makeSeparator() {
    NSBox* box = [[NSBox alloc] initWithFrame:NSRect{}];
    box.boxType = NSBoxSeparator;
    return std::make_unique<MacView>(box);
}

std::unique_ptr<Canvas> MacWidgetFactory::makeCanvas() {
    return std::make_unique<MacCanvas>();
}

}  // namespace zephrine
