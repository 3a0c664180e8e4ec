// SPDX-License-Identifier: MIT
#include "platform/macos/windows/MacPopover.h"

#include <utility>

#include "platform/macos/MacAction.h"
#include "platform/macos/MacGeometry.h"
#include "platform/macos/statusitem/MacStatusItemButton.h"
#include "platform/macos/widgets/MacView.h"

@interface ZephrinePopoverDelegate : ZephrineAction <NSPopoverDelegate>
@end

@implementation ZephrinePopoverDelegate

- (void)popoverDidClose:(NSNotification*)notification {
    [self runHandler:notification];
}

@end

namespace zephrine {

MacPopover::MacPopover()
    : popover_([[NSPopover alloc] init]),
      host_([[ZephrineContentHost alloc] initWithFrame:NSRect{}]),
      delegate_([[ZephrinePopoverDelegate alloc] init]) {
    NSViewController* controller = [[NSViewController alloc] init];
    // Given a view, the controller does not look for a nib of its own name.
    controller.view = host_;
    popover_.contentViewController = controller;
    popover_.behavior = NSPopoverBehaviorTransient;
    popover_.delegate = delegate_;
    [delegate_ setHandler:[this] { closed(); }];
}

MacPopover::~MacPopover() {
    popover_.delegate = nil;
    [popover_ close];
    [host_ empty];
}

void MacPopover::setContentView(View& view) {
    [host_ setContent:nativeView(view)];
}

void MacPopover::setContentSize(Size size) {
    [host_ setFrameSize:nsSize(size)];
    popover_.contentSize = nsSize(size);
}

void MacPopover::setDidCloseHandler(std::function<void()> handler) {
    didClose_ = std::move(handler);
}

bool MacPopover::isShown() const {
    return popover_.shown != NO;
}

void MacPopover::showRelativeTo(StatusItemButton& button) {
    // This back end makes no other buttons.
    NSView* anchor = static_cast<MacStatusItemButton&>(button).view();
    // An item that the system has hidden has no window, and AppKit raises an exception for a
    // popover without one.
    if (isShown() || anchor.window == nil) {
        return;
    }
    [host_ take];
    [popover_ showRelativeToRect:anchor.bounds ofView:anchor preferredEdge:NSRectEdgeMinY];
    // Where the item's window is not visible AppKit shows nothing, and tells of no closing.
    if (!isShown()) {
        [host_ giveBack];
        return;
    }
    // The application is active by now, but not its new window: without the keyboard a transient
    // popover of an accessory application does not notice a click elsewhere.
    [popover_.contentViewController.view.window makeKeyWindow];
}

void MacPopover::performClose() {
    // Asked of a popover that is not shown, it would beep.
    if (isShown()) {
        [popover_ performClose:nil];
    }
}

void MacPopover::closed() {
    [host_ giveBack];
    // A copy: the handler may replace itself.
    const auto handler = didClose_;
    if (handler) {
        handler();
    }
}

}  // namespace zephrine
