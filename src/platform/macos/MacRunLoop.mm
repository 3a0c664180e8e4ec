// SPDX-License-Identifier: MIT
// Each callback has an autorelease pool of its own. AppKit empties the main thread's pool once per
// event; a program in the status bar can go for hours without one while its timers fire.
#include "platform/macos/MacRunLoop.h"

#include <utility>

#import <Foundation/Foundation.h>

namespace zephrine {

namespace {

class MacTimer final : public Timer {
public:
    explicit MacTimer(NSTimer* timer) : timer_(timer) {}
    ~MacTimer() override { [timer_ invalidate]; }
    MacTimer(const MacTimer&) = delete;
    MacTimer& operator=(const MacTimer&) = delete;

private:
    NSTimer* timer_;
};

}  // namespace

std::unique_ptr<Timer> MacRunLoop::scheduleTimer(Seconds interval, Seconds tolerance,
                                                 std::function<void()> action) {
    // A block, not a target: a timer retains its target until it is invalidated. Shared, so that
    // an action which destroys its own timer lives until it returns.
    const auto shared = std::make_shared<const std::function<void()>>(std::move(action));
    NSTimer* timer = [NSTimer timerWithTimeInterval:interval.count()
                                            repeats:YES
                                              block:^(NSTimer* /*fired*/) {
                                                @autoreleasepool {
                                                    const auto kept = shared;
                                                    (*kept)();
                                                }
                                              }];
    timer.tolerance = tolerance.count();
    // The common modes: in the default one alone it would stand still during menus and drags.
    [NSRunLoop.mainRunLoop addTimer:timer forMode:NSRunLoopCommonModes];
    return std::make_unique<MacTimer>(timer);
}

void MacRunLoop::performOnMain(std::function<void()> work) {
    // Shared, because a block copies what it captures, and work may carry a lot.
    const auto shared = std::make_shared<const std::function<void()>>(std::move(work));
    dispatch_async(dispatch_get_main_queue(), ^{
      @autoreleasepool {
          (*shared)();
      }
    });
}

}  // namespace zephrine
