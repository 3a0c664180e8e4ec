// SPDX-License-Identifier: MIT
// The place in a window or popover where a content view stands. The view stays its owner's: it is
// held weakly here, but for the time that it stands in this place.
#pragma once

#import <AppKit/AppKit.h>

@interface ZephrineContentHost : NSView
/// From now on the content is `view`: takes it in; what stood here leaves.
- (void)setContent:(NSView*)view;
/// Takes the content in, if there is one, out of wherever it stands.
- (void)take;
/// Returns the content to the host that this one has taken it from last.
- (void)giveBack;
/// Lets go of what stands here. A window that is closed may live on for a while.
- (void)empty;
@end
