// SPDX-License-Identifier: MIT
// A pop-up button: it shows the selected item, unlike a pull-down one, which shows a title.
#pragma once

#include "platform/macos/MacAction.h"
#include "platform/macos/widgets/MacView.h"

namespace zephrine {

class MacPopUpButton final : public MacView, public PopUpButton {
public:
    explicit MacPopUpButton(const std::vector<std::string>& titles);

    void selectItem(int index) override;
    [[nodiscard]] int indexOfSelectedItem() const override;
    void setAction(std::function<void()> action) override;

private:
    MacPopUpButton(NSPopUpButton* button, ZephrineAction* action);

    NSPopUpButton* button_;
    ZephrineAction* action_;
};

}  // namespace zephrine
