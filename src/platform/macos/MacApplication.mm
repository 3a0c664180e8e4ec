// SPDX-License-Identifier: MIT
#include "platform/macos/MacApplication.h"

#include <utility>

namespace zephrine {

MacApplication::MacApplication()
    : application_(NSApplication.sharedApplication),
      delegate_([[ZephrineApplicationDelegate alloc] init]),
      // An application that is never in front and draws nothing for a while, because no figure has
      // changed, naps: its timers then fire once in many seconds. One that has any activity under
      // way does not (Energy Efficiency Guide for Mac Apps, "Extend App Nap"). A background
      // activity is the least of them: it claims neither that the user waits for the work nor that
      // its timers be punctual, so that their tolerance keeps its effect, and lets the machine
      // sleep.
      activity_([NSProcessInfo.processInfo
          beginActivityWithOptions:NSActivityBackground
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
    // Deprecated from 14 on in favour of `activate`, which only asks: the application in front has
    // to yield, and where it does not, the windows of a program in the menu bar open behind its
    // own. A transient popover needs the activation before it opens.
#pragma clang diagnostic push
#pragma clang diagnostic ignored "-Wdeprecated-declarations"
    [application_ activateIgnoringOtherApps:YES];
#pragma clang diagnostic pop
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
