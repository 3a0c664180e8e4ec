// SPDX-License-Identifier: MIT
// A button of the check-box style, with the two states on and off.
#pragma once

#include "platform/macos/MacAction.h"
#include "platform/macos/widgets/MacView.h"

namespace zephrine {

class MacCheckBox final : public MacView, public CheckBox {
public:
    explicit MacCheckBox(const std::string& title);

    void setOn(bool on) override;
    [[nodiscard]] bool isOn() const override;
    void setAction(std::function<void()> action) override;

private:
    MacCheckBox(NSButton* button, ZephrineAction* action);

    NSButton* button_;
    ZephrineAction* action_;
};

}  // namespace zephrine
