// SPDX-License-Identifier: MIT
// AppKit's windows: view controllers, windows, popovers, the status bar and alerts.
#pragma once
#import <AppKit/AppKitViews.h>
NS_ASSUME_NONNULL_BEGIN
@interface NSViewController : NSResponder
@property(strong) NSView* view;
@end
typedef NS_OPTIONS(NSUInteger, NSWindowStyleMask) {
    NSWindowStyleMaskBorderless = 0,
    NSWindowStyleMaskTitled = 1 << 0,
    NSWindowStyleMaskClosable = 1 << 1,
    NSWindowStyleMaskMiniaturizable = 1 << 2,
    NSWindowStyleMaskResizable = 1 << 3
};
typedef NS_ENUM(NSUInteger, NSBackingStoreType) { NSBackingStoreBuffered = 2 };
@protocol NSWindowDelegate <NSObject>
@optional
- (void)windowWillClose:(NSNotification*)n;
@end
@interface NSWindow : NSResponder
- (instancetype)initWithContentRect:(NSRect)rect
                          styleMask:(NSWindowStyleMask)style
                            backing:(NSBackingStoreType)backing
                              defer:(BOOL)flag NS_DESIGNATED_INITIALIZER;
@property(copy) NSString* title;
@property(nullable, weak) id<NSWindowDelegate> delegate;
@property NSWindowStyleMask styleMask;
@property(nullable, strong) __kindof NSView* contentView;
@property(getter=isReleasedWhenClosed) BOOL releasedWhenClosed;
@property(readonly, getter=isVisible) BOOL visible;
- (void)center;
- (void)close;
- (void)performClose:(nullable id)sender;
- (void)makeKeyWindow;
- (void)makeKeyAndOrderFront:(nullable id)sender;
@end
typedef NS_ENUM(NSInteger, NSPopoverBehavior) {
    NSPopoverBehaviorApplicationDefined = 0,
    NSPopoverBehaviorTransient = 1,
    NSPopoverBehaviorSemitransient = 2
};
@protocol NSPopoverDelegate <NSObject>
@optional
- (void)popoverDidClose:(NSNotification*)n;
@end
@interface NSPopover : NSResponder
@property(nullable, weak) id<NSPopoverDelegate> delegate;
@property NSPopoverBehavior behavior;
@property(nullable, strong) NSViewController* contentViewController;
@property NSSize contentSize;
@property(readonly, getter=isShown) BOOL shown;
- (void)showRelativeToRect:(NSRect)rect ofView:(NSView*)view preferredEdge:(NSRectEdge)edge;
- (void)performClose:(nullable id)sender;
- (void)close;
@end
@interface NSStatusBarButton : NSButton
@end
@interface NSStatusItem : NSObject
@property CGFloat length;
@property(nullable, readonly, strong) NSStatusBarButton* button
    __attribute__((availability(macos, introduced=10.10)));
@property(null_resettable, copy) NSString* autosaveName
    __attribute__((availability(macos, introduced=10.12)));
@end
@interface NSStatusBar : NSObject
@property(class, readonly, strong) NSStatusBar* systemStatusBar;
- (NSStatusItem*)statusItemWithLength:(CGFloat)length;
- (void)removeStatusItem:(NSStatusItem*)item;
@end
typedef NSInteger NSModalResponse;
@interface NSAlert : NSObject
@property(copy) NSString *messageText, *informativeText;
- (NSModalResponse)runModal;
@end
NS_ASSUME_NONNULL_END
