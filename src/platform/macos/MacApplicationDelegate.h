// SPDX-License-Identifier: MIT
// Passes the application's messages on to the seam's delegate.
#pragma once

#include "platform/Application.h"

#import <AppKit/AppKit.h>

@interface ZephrineApplicationDelegate : NSObject <NSApplicationDelegate>
/// `delegate` must outlive the event loop.
- (void)setDelegate:(zephrine::ApplicationDelegate*)delegate;
@end
