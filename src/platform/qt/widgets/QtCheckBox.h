// SPDX-License-Identifier: MIT
// A box to tick, with its title beside it.
#pragma once

#include "platform/qt/theme/SystemAppearance.h"
#include "platform/qt/widgets/QtView.h"

namespace zephrine {

class QtCheckBox final : public QtView, public CheckBox {
public:
    /// `appearance` outlives the check box.
    QtCheckBox(const SystemAppearance& appearance, const std::string& title);

    void setOn(bool on) override;
    [[nodiscard]] bool isOn() const override;
    void setAction(std::function<void()> action) override;

private:
    std::function<void()> action_;
};

}  // namespace zephrine
