// SPDX-License-Identifier: MIT
// Shows an icon, at the resolution of the screen that it is on.
#pragma once

#include "platform/qt/widgets/QtView.h"

namespace zephrine {

class IconWidget;

class QtImageView final : public QtView, public ImageView {
public:
    QtImageView();

    bool setImageNamed(const std::string& name) override;
    void setApplicationIcon() override;

private:
    IconWidget& icon_;
};

}  // namespace zephrine
