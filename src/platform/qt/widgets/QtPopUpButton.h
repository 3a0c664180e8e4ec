// SPDX-License-Identifier: MIT
// A button that shows one of several titles and opens the list of them all.
#pragma once

#include <vector>

#include "platform/qt/theme/SystemAppearance.h"
#include "platform/qt/widgets/QtView.h"

namespace zephrine {

class QtPopUpButton final : public QtView, public PopUpButton {
public:
    /// `appearance` outlives the button.
    QtPopUpButton(const SystemAppearance& appearance, const std::vector<std::string>& titles);

    void selectItem(int index) override;
    [[nodiscard]] int indexOfSelectedItem() const override;
    void setAction(std::function<void()> action) override;

private:
    std::function<void()> action_;
};

}  // namespace zephrine
