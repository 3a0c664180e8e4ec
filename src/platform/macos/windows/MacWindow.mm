// SPDX-License-Identifier: MIT
#include "platform/macos/windows/MacWindow.h"

#include "platform/macos/MacAction.h"
#include "platform/macos/MacGeometry.h"
#include "platform/macos/MacString.h"
#include "platform/macos/widgets/MacView.h"

@interface ZephrineWindowDelegate : ZephrineAction <NSWindowDelegate>
@end

@implementation ZephrineWindowDelegate

- (void)windowWillClose:(NSNotification*)notification {
    [self runHandler:notification];
}

@end

namespace zephrine {

MacWindow::MacWindow(const std::string& title, Size contentSize)
    : window_([[NSWindow alloc]
          initWithContentRect:nsRect({0, 0, contentSize.width, contentSize.height})
                    styleMask:NSWindowStyleMaskTitled | NSWindowStyleMaskClosable
                      backing:NSBackingStoreBuffered
                        defer:NO]),
      host_([[ZephrineContentHost alloc]
          initWithFrame:nsRect({0, 0, contentSize.width, contentSize.height})]),
      delegate_([[ZephrineWindowDelegate alloc] init]) {
    window_.title = nsString(title);
    window_.contentView = host_;
    window_.delegate = delegate_;
    [delegate_ setHandler:[this] { [host_ giveBack]; }];
    // Closing only hides it. A window that released itself would also be released by ARC.
    window_.releasedWhenClosed = NO;
}

MacWindow::~MacWindow() {
    window_.delegate = nil;
    [window_ close];
    [host_ empty];
}

void MacWindow::setContentView(View& view) {
    [host_ setContent:nativeView(view)];
}

bool MacWindow::isVisible() const {
    return window_.visible != NO;
}

void MacWindow::center() {
    [window_ center];
}

void MacWindow::makeKeyAndOrderFront() {
    [host_ take];
    [window_ makeKeyAndOrderFront:nil];
}

}  // namespace zephrine
