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
    : popover_([[NSPopover alloc] init]), delegate_([[ZephrinePopoverDelegate alloc] init]) {
    NSViewController* controller = [[NSViewController alloc] init];
    // Given a view, the controller does not look for a nib of its own name.
    controller.view = [[NSView alloc] initWithFrame:NSRect{}];
    popover_.contentViewController = controller;
    popover_.behavior = NSPopoverBehaviorTransient;
    popover_.delegate = delegate_;
}

MacPopover::~MacPopover() {
    popover_.delegate = nil;
    [popover_ close];
}

void MacPopover::setContentView(View& view) {
    setContent(popover_.contentViewController.view, view);
}

void MacPopover::setContentSize(Size size) {
    [popover_.contentViewController.view setFrameSize:nsSize(size)];
    popover_.contentSize = nsSize(size);
}

void MacPopover::setDidCloseHandler(std::function<void()> handler) {
    [delegate_ setHandler:std::move(handler)];
}

bool MacPopover::isShown() const {
    return popover_.shown != NO;
}

void MacPopover::showRelativeTo(StatusItemButton& button) {
    // This back end makes no other buttons.
    NSView* anchor = static_cast<MacStatusItemButton&>(button).view();
    // An item that the system has hidden has no window, and AppKit raises an exception for a
    // popover without one.
    if (anchor.window == nil) {
        return;
    }
    [popover_ showRelativeToRect:anchor.bounds ofView:anchor preferredEdge:NSRectEdgeMinY];
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

}  // namespace zephrine
