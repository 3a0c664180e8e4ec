// SPDX-License-Identifier: MIT
// The transient popover below the status item.
#pragma once

#include "platform/Windows.h"
#include "platform/macos/windows/MacContentHost.h"

#import <AppKit/AppKit.h>

@class ZephrinePopoverDelegate;

namespace zephrine {

class MacPopover final : public Popover {
public:
    MacPopover();
    ~MacPopover() override;
    MacPopover(const MacPopover&) = delete;
    MacPopover& operator=(const MacPopover&) = delete;

    void setContentView(View& view) override;
    void setContentSize(Size size) override;
    void setDidCloseHandler(std::function<void()> handler) override;
    [[nodiscard]] bool isShown() const override;
    void showRelativeTo(StatusItemButton& button) override;
    void performClose() override;

private:
    void closed();

    NSPopover* popover_;
    ZephrineContentHost* host_;
    std::function<void()> didClose_;
    ZephrinePopoverDelegate* delegate_;  // the popover holds it weakly
};

}  // namespace zephrine
