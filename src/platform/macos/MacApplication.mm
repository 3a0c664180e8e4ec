// SPDX-License-Identifier: MIT
#include "platform/macos/MacApplication.h"

#include <utility>

namespace zephrine {

MacApplication::MacApplication()
    : application_(NSApplication.sharedApplication),
      delegate_([[ZephrineApplicationDelegate alloc] init]),
      // An application without a window counts as idle, and App Nap would stretch its timers to
      // many seconds. This keeps it awake, but not the machine; the timers' tolerance still lets
      // the system group wake-ups.
      activity_([NSProcessInfo.processInfo
          beginActivityWithOptions:NSActivityUserInitiatedAllowingIdleSystemSleep
                            reason:@"Keeping the figures in the menu bar current"]) {
    application_.delegate = delegate_;
}

MacApplication::~MacApplication() {
    for (ZephrineAction* observer : observers_) {
        [NSWorkspace.sharedWorkspace.notificationCenter removeObserver:observer];
        [[NSDistributedNotificationCenter defaultCenter] removeObserver:observer];
    }
    application_.delegate = nil;
    [NSProcessInfo.processInfo endActivity:activity_];
}

void MacApplication::setDelegate(ApplicationDelegate& delegate) {
    [delegate_ setDelegate:&delegate];
}

void MacApplication::setAccessoryActivationPolicy() {
    [application_ setActivationPolicy:NSApplicationActivationPolicyAccessory];
}

void MacApplication::run() {
    [application_ run];
}

void MacApplication::terminate() {
    [application_ terminate:nil];
}

void MacApplication::activateIgnoringOtherApps() {
    // Deprecated from 14 on, where activation is cooperative. A click on our item makes it ours to
    // ask for either way. A transient popover needs it before it opens.
    if (@available(macOS 14.0, *)) {
        [application_ activate];
    } else {
        [application_ activateIgnoringOtherApps:YES];
    }
}

void MacApplication::observeDidWake(std::function<void()> handler) {
    ZephrineAction* observer = [[ZephrineAction alloc] init];
    [observer setHandler:std::move(handler)];
    observers_.push_back(observer);
    // The workspace has a notification centre of its own: the default one never hears of wake-ups.
    [NSWorkspace.sharedWorkspace.notificationCenter addObserver:observer
                                                       selector:@selector(runHandler:)
                                                           name:NSWorkspaceDidWakeNotification
                                                         object:nil];
}

void MacApplication::observeThemeChanged(std::function<void()> handler) {
    ZephrineAction* observer = [[ZephrineAction alloc] init];
    [observer setHandler:std::move(handler)];
    observers_.push_back(observer);
    // Delivered immediately: AppKit holds distributed notifications back while an application is
    // not the active one, which this one hardly ever is.
    [[NSDistributedNotificationCenter defaultCenter]
               addObserver:observer
                  selector:@selector(runHandler:)
                      name:@"AppleInterfaceThemeChangedNotification"
                    object:nil
        suspensionBehavior:NSNotificationSuspensionBehaviorDeliverImmediately];
}

}  // namespace zephrine
