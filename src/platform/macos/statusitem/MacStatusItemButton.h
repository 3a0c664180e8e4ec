// SPDX-License-Identifier: MIT
// The button of the status item.
#pragma once

#include "platform/StatusBar.h"
#include "platform/macos/MacAction.h"

#import <AppKit/AppKit.h>

namespace zephrine {

class MacStatusItemButton final : public StatusItemButton {
public:
    explicit MacStatusItemButton(NSStatusBarButton* button);

    [[nodiscard]] std::optional<Appearance> effectiveAppearance() override;
    void setToolTip(const std::string& text) override;
    void setAccessibilityLabel(const std::string& text) override;
    void setImage(StatusItemImage image) override;
    void setAction(std::function<void()> action) override;

    [[nodiscard]] NSView* view() const { return button_; }

private:
    NSStatusBarButton* button_;
    ZephrineAction* action_ = [[ZephrineAction alloc] init];
};

}  // namespace zephrine
