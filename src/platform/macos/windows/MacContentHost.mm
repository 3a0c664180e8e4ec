// SPDX-License-Identifier: MIT
#include "platform/macos/windows/MacContentHost.h"

@implementation ZephrineContentHost {
    __weak NSView* _content;
    __weak ZephrineContentHost* _lender;
}

- (void)setContent:(NSView*)view {
    _content = view;
    [self take];
}

- (void)take {
    NSView* content = _content;
    NSView* before = content.superview;
    if (content != nil && before != self) {
        const bool isHost = [before isKindOfClass:ZephrineContentHost.class] != NO;
        _lender = isHost ? static_cast<ZephrineContentHost*>(before) : nil;
        [self showContent];
    }
}

- (void)giveBack {
    NSView* content = _content;
    ZephrineContentHost* lender = _lender;
    _lender = nil;
    if (content != nil && content.superview == self && [lender isFor:content]) {
        [lender showContent];
    }
}

- (void)empty {
    for (NSView* former in self.subviews) {  // a copy, which may change under the loop
        [former removeFromSuperview];
    }
}

- (BOOL)isFor:(NSView*)view {
    return view == _content ? YES : NO;
}

- (void)showContent {
    NSView* content = _content;
    [self empty];
    if (content != nil) {
        [self addSubview:content];
    }
}

@end
