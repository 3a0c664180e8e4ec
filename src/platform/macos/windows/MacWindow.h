// SPDX-License-Identifier: MIT
// A titled window that can be closed and nothing else.
#pragma once

#include "platform/Windows.h"
#include "platform/macos/windows/MacContentHost.h"

#import <AppKit/AppKit.h>

@class ZephrineWindowDelegate;

namespace zephrine {

class MacWindow final : public Window {
public:
    MacWindow(const std::string& title, Size contentSize);
    ~MacWindow() override;
    MacWindow(const MacWindow&) = delete;
    MacWindow& operator=(const MacWindow&) = delete;

    void setContentView(View& view) override;
    [[nodiscard]] bool isVisible() const override;
    void center() override;
    void makeKeyAndOrderFront() override;

private:
    NSWindow* window_;
    ZephrineContentHost* host_;
    ZephrineWindowDelegate* delegate_;  // the window holds it weakly
};

}  // namespace zephrine
