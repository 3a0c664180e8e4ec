// SPDX-License-Identifier: MIT
// Core Foundation's types and the few functions used, Core Graphics' geometry, and three names that
// the system's umbrella headers put into the global namespace of every program.
#pragma once
#include <stddef.h>
#include <stdint.h>
// From MacTypes.h, which every umbrella header brings along: names that ours must not rely on
// finding free in the global namespace.
struct Point {
    short v, h;
};
struct Rect {
    short top, left, bottom, right;
};
typedef long Size;
// From AssertMacros.h, likewise, unless the program asks for the versions with underscores only.
#ifndef __ASSERT_MACROS_DEFINE_VERSIONS_WITHOUT_UNDERSCORES
#define __ASSERT_MACROS_DEFINE_VERSIONS_WITHOUT_UNDERSCORES 1
#endif
#if __ASSERT_MACROS_DEFINE_VERSIONS_WITHOUT_UNDERSCORES
#define check(assertion)
#define require(assertion, exceptionLabel) \
    do {                                   \
        if (!(assertion))                  \
            goto exceptionLabel;           \
    } while (0)
#define verify(assertion)
#endif
#ifdef __cplusplus
extern "C" {
#endif
typedef unsigned char Boolean;
typedef signed long CFIndex;
typedef unsigned long CFTypeID;
typedef double CGFloat;
typedef struct CGPoint {
    CGFloat x, y;
} CGPoint;
typedef struct CGSize {
    CGFloat width, height;
} CGSize;
typedef struct CGRect {
    CGPoint origin;
    CGSize size;
} CGRect;
typedef const void* CFTypeRef;
typedef const struct __attribute__((objc_bridge(NSString))) __CFString* CFStringRef;
typedef const struct __attribute__((objc_bridge(NSDictionary))) __CFDictionary* CFDictionaryRef;
typedef struct __attribute__((objc_bridge_mutable(NSMutableDictionary)))
__CFDictionary* CFMutableDictionaryRef;
typedef const struct __CFAllocator* CFAllocatorRef;
extern const CFAllocatorRef kCFAllocatorDefault;
void CFRelease(CFTypeRef cf);
CFTypeID CFGetTypeID(CFTypeRef cf);
CFTypeID CFBooleanGetTypeID(void);
#ifdef __cplusplus
}
#endif
