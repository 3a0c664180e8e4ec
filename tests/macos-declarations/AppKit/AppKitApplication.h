// SPDX-License-Identifier: MIT
// AppKit's application object and the workspace.
#pragma once
#import <AppKit/AppKitWindows.h>
NS_ASSUME_NONNULL_BEGIN
APPKIT_EXTERN NSNotificationName const NSWorkspaceDidWakeNotification;
@interface NSWorkspace : NSObject
@property(class, readonly, strong) NSWorkspace* sharedWorkspace;
@property(readonly, strong) NSNotificationCenter* notificationCenter;
@end
typedef NS_ENUM(NSInteger, NSApplicationActivationPolicy) {
    NSApplicationActivationPolicyRegular,
    NSApplicationActivationPolicyAccessory,
    NSApplicationActivationPolicyProhibited
};
@class NSApplication;
@protocol NSApplicationDelegate <NSObject>
@optional
- (void)applicationDidFinishLaunching:(NSNotification*)n;
- (BOOL)applicationShouldHandleReopen:(NSApplication*)sender hasVisibleWindows:(BOOL)flag;
@end
@interface NSApplication : NSResponder
@property(class, readonly, strong) __kindof NSApplication* sharedApplication;
@property(nullable, weak) id<NSApplicationDelegate> delegate;
@property(null_resettable, strong) NSImage* applicationIconImage;
- (BOOL)setActivationPolicy:(NSApplicationActivationPolicy)policy;
- (void)activateIgnoringOtherApps:(BOOL)flag
    __attribute__((availability(macos, introduced = 10.0, deprecated = 14.0)));
- (void)activate __attribute__((availability(macos, introduced = 14.0)));
- (void)run;
- (void)terminate:(nullable id)sender;
@end
NS_ASSUME_NONNULL_END
