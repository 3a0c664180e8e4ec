// SPDX-License-Identifier: MIT
// Foundation: the root class, values, defaults, timers, notifications and formatters.
#pragma once
#include <CoreFoundation/CoreFoundation.h>
#include <dispatch/dispatch.h>
#include <mach/mach.h>
#include <objc/objc.h>
#include <stdarg.h>
#define NS_ASSUME_NONNULL_BEGIN _Pragma("clang assume_nonnull begin")
#define NS_ASSUME_NONNULL_END _Pragma("clang assume_nonnull end")
#define NS_ENUM(T, N) \
    enum N : T N;     \
    enum __attribute__((enum_extensibility(open))) N : T
#define NS_OPTIONS(T, N) \
    T N;                 \
    enum __attribute__((flag_enum, enum_extensibility(open))) : T
#define NS_DESIGNATED_INITIALIZER __attribute__((objc_designated_initializer))
#define NS_UNAVAILABLE __attribute__((unavailable))
#define NS_FORMAT_FUNCTION(F, A) __attribute__((format(__NSString__, F, A)))
#define NS_RETURNS_INNER __attribute__((objc_returns_inner_pointer))
#define NS_REQUIRES_SUPER __attribute__((objc_requires_super))
#define FOUNDATION_EXPORT extern "C"
typedef long NSInteger;
typedef unsigned long NSUInteger;
typedef double NSTimeInterval;
typedef CGPoint NSPoint;
typedef CGSize NSSize;
typedef CGRect NSRect;
typedef struct _NSRange {
    NSUInteger location, length;
} NSRange;
typedef struct _NSZone NSZone;
typedef struct {
    unsigned long state;
    id __unsafe_unretained _Nullable* _Nullable itemsPtr;
    unsigned long* _Nullable mutationsPtr;
    unsigned long extra[5];
} NSFastEnumerationState;
static inline NSPoint NSMakePoint(CGFloat x, CGFloat y) {
    return {x, y};
}
static inline NSSize NSMakeSize(CGFloat w, CGFloat h) {
    return {w, h};
}
static inline NSRect NSMakeRect(CGFloat x, CGFloat y, CGFloat w, CGFloat h) {
    return {{x, y}, {w, h}};
}
typedef NS_ENUM(NSUInteger, NSRectEdge) {
    NSRectEdgeMinX = 0,
    NSRectEdgeMinY = 1,
    NSRectEdgeMaxX = 2,
    NSRectEdgeMaxY = 3
};
NS_ASSUME_NONNULL_BEGIN
@class NSString, NSArray<__covariant T>, NSDictionary<__covariant K, __covariant V>, NSNumber,
    NSError, NSBundle, NSNotification, NSRunLoop;
@protocol NSObject
- (BOOL)isEqual:(nullable id)object;
@property(readonly) NSUInteger hash;
- (BOOL)respondsToSelector:(SEL)sel;
- (BOOL)isKindOfClass:(Class)cls;
- (instancetype)self;
@end
@protocol NSCopying
- (id)copyWithZone:(nullable NSZone*)zone;
@end
@protocol NSFastEnumeration
- (NSUInteger)countByEnumeratingWithState:(NSFastEnumerationState*)state
                                  objects:(id __unsafe_unretained _Nullable[_Nonnull])buffer
                                    count:(NSUInteger)len;
@end
__attribute__((objc_root_class))
@interface NSObject<NSObject> {
    Class isa;
}
+ (instancetype)alloc;
+ (instancetype)new;
- (instancetype)init NS_DESIGNATED_INITIALIZER;
- (void)dealloc;
+ (Class)class;
- (Class)class;
@end
typedef NSUInteger NSStringEncoding;
enum : NSStringEncoding { NSASCIIStringEncoding = 1, NSUTF8StringEncoding = 4 };
@interface NSString : NSObject <NSCopying>
@property(readonly) NSUInteger length;
@property(nullable, readonly) const char* UTF8String NS_RETURNS_INNER;
- (nullable instancetype)initWithBytes:(const void*)bytes
                                length:(NSUInteger)len
                              encoding:(NSStringEncoding)encoding;
- (BOOL)isEqualToString:(NSString*)s;
- (NSUInteger)lengthOfBytesUsingEncoding:(NSStringEncoding)encoding;
@end
@interface NSConstantString : NSString
@end
@interface NSArray<__covariant T> : NSObject <NSCopying, NSFastEnumeration>
@property(readonly) NSUInteger count;
- (T)objectAtIndexedSubscript:(NSUInteger)idx;
+ (instancetype)arrayWithObjects:(const T _Nonnull[_Nonnull])objects count:(NSUInteger)n;
@end
@interface NSMutableArray<T> : NSArray <T>
+ (instancetype)arrayWithCapacity:(NSUInteger)n;
- (void)addObject:(T)object;
@end
@interface NSDictionary<__covariant K, __covariant V> : NSObject <NSCopying, NSFastEnumeration>
@property(readonly) NSUInteger count;
- (nullable V)objectForKeyedSubscript:(K)key;
+ (instancetype)dictionaryWithObjects:(const V _Nonnull[_Nullable])objects
                              forKeys:(const K<NSCopying> _Nonnull[_Nullable])keys
                                count:(NSUInteger)n;
@end
@interface NSNumber : NSObject <NSCopying>
+ (NSNumber*)numberWithBool:(BOOL)v;
+ (NSNumber*)numberWithInt:(int)v;
+ (NSNumber*)numberWithUnsignedInt:(unsigned)v;
+ (NSNumber*)numberWithLong:(long)v;
+ (NSNumber*)numberWithUnsignedLong:(unsigned long)v;
+ (NSNumber*)numberWithLongLong:(long long)v;
+ (NSNumber*)numberWithUnsignedLongLong:(unsigned long long)v;
+ (NSNumber*)numberWithDouble:(double)v;
@property(readonly) double doubleValue;
@property(readonly) NSInteger integerValue;
@property(readonly) BOOL boolValue;
@property(readonly) const char* objCType;
@end
@interface NSError : NSObject
@property(readonly, copy) NSString* localizedDescription;
@end
@interface NSBundle : NSObject
@property(class, readonly, strong) NSBundle* mainBundle;
@property(nullable, readonly, copy) NSString* bundleIdentifier;
@end
typedef NSString* NSNotificationName;
@interface NSNotification : NSObject
@property(nullable, readonly, strong) id object;
@end
@interface NSNotificationCenter : NSObject
@property(class, readonly, strong) NSNotificationCenter* defaultCenter;
- (void)addObserver:(id)observer
           selector:(SEL)sel
               name:(nullable NSNotificationName)name
             object:(nullable id)object;
- (void)removeObserver:(id)observer;
@end
typedef NS_ENUM(NSUInteger, NSNotificationSuspensionBehavior) {
    NSNotificationSuspensionBehaviorDrop = 1,
    NSNotificationSuspensionBehaviorCoalesce = 2,
    NSNotificationSuspensionBehaviorHold = 3,
    NSNotificationSuspensionBehaviorDeliverImmediately = 4
};
@interface NSDistributedNotificationCenter : NSNotificationCenter
- (void)addObserver:(id)observer
              selector:(SEL)sel
                  name:(nullable NSNotificationName)name
                object:(nullable NSString*)object
    suspensionBehavior:(NSNotificationSuspensionBehavior)behavior;
+ (NSDistributedNotificationCenter*)defaultCenter;
@end
@interface NSUserDefaults : NSObject
@property(class, readonly, strong) NSUserDefaults* standardUserDefaults;
- (nullable id)objectForKey:(NSString*)key;
- (void)removeObjectForKey:(NSString*)key;
- (double)doubleForKey:(NSString*)key;
- (BOOL)boolForKey:(NSString*)key;
- (void)setObject:(nullable id)v forKey:(NSString*)key;
- (void)setDouble:(double)v forKey:(NSString*)key;
- (void)setInteger:(NSInteger)v forKey:(NSString*)key;
- (void)setBool:(BOOL)v forKey:(NSString*)key;
@end
typedef NSString* NSRunLoopMode;
FOUNDATION_EXPORT NSRunLoopMode const NSDefaultRunLoopMode;
FOUNDATION_EXPORT NSRunLoopMode const NSRunLoopCommonModes;
@interface NSTimer : NSObject
+ (NSTimer*)timerWithTimeInterval:(NSTimeInterval)ti
                          repeats:(BOOL)repeats
                            block:(void (^)(NSTimer* timer))block;
- (void)invalidate;
@property NSTimeInterval tolerance;
@property(readonly, getter=isValid) BOOL valid;
@end
@interface NSData : NSObject
@property(readonly) NSUInteger length;
@end
@interface NSDate : NSObject
+ (instancetype)dateWithTimeIntervalSinceNow:(NSTimeInterval)seconds;
@end
@interface NSRunLoop : NSObject
@property(class, readonly, strong) NSRunLoop* mainRunLoop;
- (void)addTimer:(NSTimer*)timer forMode:(NSRunLoopMode)mode;
- (void)runUntilDate:(NSDate*)date;
@end
typedef NS_OPTIONS(uint64_t, NSActivityOptions) { NSActivityBackground = 0x000000FFULL };
@interface NSProcessInfo : NSObject
@property(class, readonly, strong) NSProcessInfo* processInfo;
@property(readonly) NSUInteger activeProcessorCount;
@property(readonly) unsigned long long physicalMemory;
@property(readonly) NSTimeInterval systemUptime;
- (id<NSObject>)beginActivityWithOptions:(NSActivityOptions)options reason:(NSString*)reason;
- (void)endActivity:(id<NSObject>)activity;
@end
@interface NSFormatter : NSObject
@end
typedef NS_ENUM(NSInteger, NSByteCountFormatterCountStyle) {
    NSByteCountFormatterCountStyleFile,
    NSByteCountFormatterCountStyleMemory,
    NSByteCountFormatterCountStyleDecimal,
    NSByteCountFormatterCountStyleBinary
};
@interface NSByteCountFormatter : NSFormatter
+ (NSString*)stringFromByteCount:(long long)n countStyle:(NSByteCountFormatterCountStyle)style;
@end
typedef NS_ENUM(NSUInteger, NSNumberFormatterStyle) {
    NSNumberFormatterNoStyle,
    NSNumberFormatterDecimalStyle,
    NSNumberFormatterCurrencyStyle,
    NSNumberFormatterPercentStyle
};
@interface NSNumberFormatter : NSFormatter
+ (NSString*)localizedStringFromNumber:(NSNumber*)n numberStyle:(NSNumberFormatterStyle)style;
@end
NS_ASSUME_NONNULL_END
