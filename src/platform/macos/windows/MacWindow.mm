// SPDX-License-Identifier: MIT
#include "platform/macos/windows/MacWindow.h"

#include "platform/macos/MacGeometry.h"
#include "platform/macos/MacString.h"
#include "platform/macos/widgets/MacView.h"

namespace zephrine {

MacWindow::MacWindow(const std::string& title, Size contentSize)
    : window_([[NSWindow alloc]
          initWithContentRect:nsRect({0, 0, contentSize.width, contentSize.height})
                    styleMask:NSWindowStyleMaskTitled | NSWindowStyleMaskClosable
                      backing:NSBackingStoreBuffered
                        defer:NO]) {
    window_.title = nsString(title);
    // Closing only hides it. A window that released itself would also be released by ARC.
    window_.releasedWhenClosed = NO;
}

MacWindow::~MacWindow() {
    [window_ close];
}

void MacWindow::setContentView(View& view) {
    setContent(window_.contentView, view);
}

bool MacWindow::isVisible() const {
    return window_.visible != NO;
}

void MacWindow::center() {
    [window_ center];
}

void MacWindow::makeKeyAndOrderFront() {
    [window_ makeKeyAndOrderFront:nil];
}

}  // namespace zephrine
