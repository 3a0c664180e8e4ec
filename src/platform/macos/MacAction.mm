// SPDX-License-Identifier: MIT
#include "platform/macos/MacAction.h"

#include <utility>

@implementation ZephrineAction {
    std::function<void()> _handler;
}

- (void)setHandler:(std::function<void()>)handler {
    _handler = std::move(handler);
}

- (void)runHandler:(id)__attribute__((unused))sender {
    // A copy: the handler may replace itself or destroy the control that called.
    const std::function<void()> handler = _handler;
    if (handler) {
        handler();
    }
}

@end
