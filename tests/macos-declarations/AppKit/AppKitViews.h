// SPDX-License-Identifier: MIT
// AppKit's views and controls.
#pragma once
#import <AppKit/AppKitDrawing.h>
NS_ASSUME_NONNULL_BEGIN
@class NSWindow;
@interface NSResponder : NSObject
- (instancetype)init NS_DESIGNATED_INITIALIZER;
- (void)cancelOperation:(nullable id)sender;
@end
@interface NSView : NSResponder
- (instancetype)initWithFrame:(NSRect)frame NS_DESIGNATED_INITIALIZER;
@property(nullable, readonly, assign) NSWindow* window;
@property(nullable, readonly, assign) NSView* superview;
@property(copy) NSArray<__kindof NSView*>* subviews;
@property NSRect frame;
@property NSRect bounds;
@property BOOL needsDisplay;
@property(readonly) NSSize intrinsicContentSize;
@property(readonly, getter=isFlipped) BOOL flipped;
@property(nullable, copy) NSString* toolTip;
- (void)setFrameSize:(NSSize)size;
- (void)addSubview:(NSView*)view;
- (void)removeFromSuperview;
- (void)drawRect:(NSRect)dirty;
@end
@protocol NSAppearanceCustomization <NSObject>
@property(nullable, strong) NSAppearance* appearance;
@property(readonly, strong) NSAppearance* effectiveAppearance;
@end
@interface NSView (NSAppearanceCustomization) <NSAppearanceCustomization>
@end
typedef NSString* NSAccessibilityRole;
APPKIT_EXTERN NSAccessibilityRole const NSAccessibilityImageRole;
APPKIT_EXTERN NSAccessibilityRole const NSAccessibilityGroupRole;
@interface NSView (NSAccessibility)
@property(getter=isAccessibilityElement) BOOL accessibilityElement;
@property(nullable, copy) NSAccessibilityRole accessibilityRole;
@property(nullable, copy) NSString* accessibilityLabel;
@property(nullable, strong) id accessibilityValue;
@end
#if defined(__aarch64__)
typedef NS_ENUM(NSInteger, NSTextAlignment) {
    NSTextAlignmentLeft = 0,
    NSTextAlignmentCenter = 1,
    NSTextAlignmentRight = 2,
    NSTextAlignmentJustified = 3,
    NSTextAlignmentNatural = 4
};
#else
typedef NS_ENUM(NSInteger, NSTextAlignment) {
    NSTextAlignmentLeft = 0,
    NSTextAlignmentRight = 1,
    NSTextAlignmentCenter = 2,
    NSTextAlignmentJustified = 3,
    NSTextAlignmentNatural = 4
};
#endif
typedef NS_ENUM(NSUInteger, NSLineBreakMode) {
    NSLineBreakByWordWrapping = 0,
    NSLineBreakByCharWrapping = 1,
    NSLineBreakByClipping = 2,
    NSLineBreakByTruncatingHead = 3,
    NSLineBreakByTruncatingTail = 4,
    NSLineBreakByTruncatingMiddle = 5
};
@interface NSControl : NSView
@property(nullable, weak) id target;
@property(nullable) SEL action;
@property(copy) NSString* stringValue;
@property(nullable, strong) NSFont* font;
@property NSTextAlignment alignment;
@property NSLineBreakMode lineBreakMode __attribute__((availability(macos, introduced=10.10)));
@property BOOL usesSingleLineMode __attribute__((availability(macos, introduced=10.10)));
- (BOOL)sendAction:(nullable SEL)action to:(nullable id)target;
- (void)performClick:(nullable id)sender;
@end
@interface NSTextField : NSControl
+ (instancetype)labelWithString:(NSString*)s
    __attribute__((availability(macos, introduced = 10.12)));
@property(nullable, copy) NSColor* textColor;
@property(getter=isEditable) BOOL editable;
@property(getter=isSelectable) BOOL selectable;
@end
typedef NS_ENUM(NSUInteger, NSImageScaling) {
    NSImageScaleProportionallyDown = 0,
    NSImageScaleAxesIndependently = 1,
    NSImageScaleNone = 2,
    NSImageScaleProportionallyUpOrDown = 3
};
@interface NSImageView : NSControl
@property(nullable, strong) NSImage* image;
@property NSImageScaling imageScaling;
@end
typedef NSInteger NSControlStateValue;
static const NSControlStateValue NSControlStateValueMixed = -1, NSControlStateValueOff = 0,
                                 NSControlStateValueOn = 1;
typedef NS_ENUM(NSUInteger, NSBezelStyle) { NSBezelStyleRounded = 1 };
@interface NSButton : NSControl
+ (instancetype)buttonWithTitle:(NSString*)title
                         target:(nullable id)target
                         action:(nullable SEL)action
    __attribute__((availability(macos, introduced = 10.12)));
+ (instancetype)checkboxWithTitle:(NSString*)title
                           target:(nullable id)target
                           action:(nullable SEL)action
    __attribute__((availability(macos, introduced = 10.12)));
@property(copy) NSString* title;
@property(nullable, strong) NSImage* image;
@property NSControlStateValue state;
@property NSBezelStyle bezelStyle;
@end
@interface NSMenuItem : NSObject
@end
@interface NSMenu : NSObject
- (NSMenuItem*)addItemWithTitle:(NSString*)title
                         action:(nullable SEL)action
                  keyEquivalent:(NSString*)key;
@end
@interface NSPopUpButton : NSButton
- (instancetype)initWithFrame:(NSRect)frame pullsDown:(BOOL)flag NS_DESIGNATED_INITIALIZER;
- (void)addItemsWithTitles:(NSArray<NSString*>*)titles;
- (void)selectItemAtIndex:(NSInteger)i;
@property(readonly) NSInteger indexOfSelectedItem;
@property(readonly) NSInteger numberOfItems;
@property(readonly, copy) NSArray<NSString*>* itemTitles;
@property BOOL pullsDown;
@property(nullable, strong) NSMenu* menu;
@end
typedef NS_ENUM(NSUInteger, NSSegmentSwitchTracking) {
    NSSegmentSwitchTrackingSelectOne = 0,
    NSSegmentSwitchTrackingSelectAny = 1,
    NSSegmentSwitchTrackingMomentary = 2
};
@interface NSSegmentedControl : NSControl
+ (instancetype)segmentedControlWithLabels:(NSArray<NSString*>*)labels
                              trackingMode:(NSSegmentSwitchTracking)mode
                                    target:(nullable id)target
                                    action:(nullable SEL)action
    __attribute__((availability(macos, introduced = 10.12)));
@property NSInteger selectedSegment;
@property NSInteger segmentCount;
- (nullable NSString*)labelForSegment:(NSInteger)segment;
@end
typedef NS_ENUM(NSUInteger, NSBoxType) { NSBoxPrimary = 0, NSBoxSeparator = 2, NSBoxCustom = 4 };
@interface NSBox : NSView
@property NSBoxType boxType;
@end
NS_ASSUME_NONNULL_END
