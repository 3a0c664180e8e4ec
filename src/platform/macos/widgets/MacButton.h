// SPDX-License-Identifier: MIT
// A push button with the rounded bezel.
#pragma once

#include "platform/macos/MacAction.h"
#include "platform/macos/widgets/MacView.h"

namespace zephrine {

class MacButton final : public MacView, public Button {
public:
    explicit MacButton(const std::string& title);

    void setAction(std::function<void()> action) override;

private:
    MacButton(const std::string& title, ZephrineAction* action);

    ZephrineAction* action_;
};

}  // namespace zephrine
