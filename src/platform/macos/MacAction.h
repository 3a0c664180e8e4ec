// SPDX-License-Identifier: MIT
// The target of controls, notifications and delegates: one object that passes a message on to a
// function. Controls and notification centres hold their targets weakly, so that whoever made it
// keeps it, and a cycle cannot arise.
#pragma once

#include <functional>

#import <Foundation/Foundation.h>

@interface ZephrineAction : NSObject
- (void)setHandler:(std::function<void()>)handler;
- (void)runHandler:(id)sender;
@end
