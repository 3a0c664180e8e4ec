// SPDX-License-Identifier: MIT
// A push button with a rounded bezel. The bezel is drawn a little inside the frame, as the frames
// of buttons allow for: one at x = 14 lines up with the texts at x = 20.
#pragma once

#include "platform/qt/theme/SystemAppearance.h"
#include "platform/qt/widgets/QtView.h"

namespace zephrine {

class QtButton final : public QtView, public Button {
public:
    /// `appearance` outlives the button.
    QtButton(const SystemAppearance& appearance, const std::string& title);

    void setAction(std::function<void()> action) override;

private:
    std::function<void()> action_;
};

}  // namespace zephrine
