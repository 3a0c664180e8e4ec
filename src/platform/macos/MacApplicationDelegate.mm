// SPDX-License-Identifier: MIT
#include "platform/macos/MacApplicationDelegate.h"

@implementation ZephrineApplicationDelegate {
    zephrine::ApplicationDelegate* _delegate;
}

- (void)setDelegate:(zephrine::ApplicationDelegate*)delegate {
    _delegate = delegate;
}

- (void)applicationDidFinishLaunching:(NSNotification*)__attribute__((unused))notification {
    if (_delegate != nullptr) {
        _delegate->applicationDidFinishLaunching();
    }
}

- (BOOL)applicationShouldHandleReopen:(NSApplication*)__attribute__((unused))sender
                    hasVisibleWindows:(BOOL)flag {
    if (_delegate == nullptr) {
        return YES;
    }
    // Compared and chosen, not converted: BOOL is a number on x86_64 and a bool on arm64.
    return _delegate->applicationShouldHandleReopen(flag != NO) ? YES : NO;
}

@end
