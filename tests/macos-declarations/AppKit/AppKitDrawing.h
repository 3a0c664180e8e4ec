// SPDX-License-Identifier: MIT
// AppKit's drawing: colours, fonts, paths, images, text in the current graphics context.
#pragma once
#import <Foundation/Foundation.h>
#define APPKIT_EXTERN extern "C"
NS_ASSUME_NONNULL_BEGIN
typedef NSString* NSAttributedStringKey;
APPKIT_EXTERN NSAttributedStringKey const NSFontAttributeName, NSForegroundColorAttributeName;
@interface NSString (NSStringDrawing)
- (NSSize)sizeWithAttributes:(nullable NSDictionary<NSAttributedStringKey, id>*)attrs;
- (void)drawAtPoint:(NSPoint)point
     withAttributes:(nullable NSDictionary<NSAttributedStringKey, id>*)attrs;
@end
typedef NS_ENUM(NSUInteger, NSCompositingOperation) {
    NSCompositingOperationClear = 0,
    NSCompositingOperationCopy = 1,
    NSCompositingOperationSourceOver = 2
};
APPKIT_EXTERN void NSRectFillUsingOperation(NSRect rect, NSCompositingOperation op);
typedef NSString* NSAppearanceName;
APPKIT_EXTERN NSAppearanceName const NSAppearanceNameAqua;
APPKIT_EXTERN NSAppearanceName const NSAppearanceNameDarkAqua
    __attribute__((availability(macos, introduced = 10.14)));
@interface NSAppearance : NSObject
- (nullable NSAppearanceName)bestMatchFromAppearancesWithNames:(NSArray<NSAppearanceName>*)names
    __attribute__((availability(macos, introduced = 10.14)));
@end
typedef CGFloat NSFontWeight;
APPKIT_EXTERN const NSFontWeight NSFontWeightRegular, NSFontWeightMedium, NSFontWeightSemibold;
@interface NSFont : NSObject <NSCopying>
+ (NSFont*)systemFontOfSize:(CGFloat)size weight:(NSFontWeight)weight;
+ (NSFont*)monospacedDigitSystemFontOfSize:(CGFloat)size weight:(NSFontWeight)weight;
+ (NSFont*)monospacedSystemFontOfSize:(CGFloat)size
                               weight:(NSFontWeight)weight
    __attribute__((availability(macos, introduced = 10.15)));
@end
@interface NSColor : NSObject <NSCopying>
@property(class, strong, readonly) NSColor *labelColor, *secondaryLabelColor, *quaternaryLabelColor;
@property(class, strong, readonly) NSColor *systemRedColor, *systemGreenColor, *systemBlueColor,
    *systemOrangeColor, *systemPurpleColor;
@property(class, strong, readonly) NSColor *blackColor, *whiteColor;
- (void)setFill;
- (void)setStroke;
@end
typedef NS_ENUM(NSUInteger, NSLineJoinStyle) {
    NSLineJoinStyleMiter = 0,
    NSLineJoinStyleRound = 1,
    NSLineJoinStyleBevel = 2
};
@interface NSBezierPath : NSObject <NSCopying>
+ (NSBezierPath*)bezierPath;
+ (NSBezierPath*)bezierPathWithOvalInRect:(NSRect)rect;
- (void)moveToPoint:(NSPoint)p;
- (void)lineToPoint:(NSPoint)p;
- (void)fill;
- (void)stroke;
@property CGFloat lineWidth;
@property NSLineJoinStyle lineJoinStyle;
@property(readonly, getter=isEmpty) BOOL empty;
@end
@interface NSImage : NSObject <NSCopying>
+ (nullable NSImage*)imageNamed:(NSString*)name;
+ (instancetype)imageWithSize:(NSSize)size
                      flipped:(BOOL)flipped
               drawingHandler:(BOOL (^)(NSRect dstRect))handler;
@property NSSize size;
@property(nullable, readonly, copy) NSData* TIFFRepresentation;
- (BOOL)isTemplate;
- (void)setTemplate:(BOOL)flag;
@end
NS_ASSUME_NONNULL_END
