// SPDX-License-Identifier: MIT
// Queues. dispatch_sync runs its block before it returns; the others return at once.
#pragma once
#include <objc/objc.h>
#include <stddef.h>
#include <stdint.h>
@protocol OS_dispatch_object
@end
@protocol OS_dispatch_queue <OS_dispatch_object>
@end
@protocol OS_dispatch_queue_attr <OS_dispatch_object>
@end
#if __has_feature(objc_arc) || defined(__OBJC__)
@class NSObject;
typedef NSObject<OS_dispatch_queue>* dispatch_queue_t;
typedef NSObject<OS_dispatch_queue_attr>* dispatch_queue_attr_t;
#endif
extern "C" {
typedef void (^dispatch_block_t)(void);
typedef enum : unsigned int {
    QOS_CLASS_USER_INTERACTIVE = 0x21,
    QOS_CLASS_USER_INITIATED = 0x19,
    QOS_CLASS_DEFAULT = 0x15,
    QOS_CLASS_UTILITY = 0x11,
    QOS_CLASS_BACKGROUND = 0x09,
    QOS_CLASS_UNSPECIFIED = 0
} qos_class_t;
#define DISPATCH_QUEUE_SERIAL nullptr
dispatch_queue_t dispatch_queue_create(const char* label, dispatch_queue_attr_t attr)
    __attribute__((ns_returns_retained));
dispatch_queue_attr_t dispatch_queue_attr_make_with_qos_class(dispatch_queue_attr_t attr,
                                                              qos_class_t qos, int relative);
void dispatch_sync(dispatch_queue_t queue, __attribute__((noescape)) dispatch_block_t block);
void dispatch_async(dispatch_queue_t queue, dispatch_block_t block);
struct dispatch_queue_s;
extern struct dispatch_queue_s _dispatch_main_q;
static inline dispatch_queue_t dispatch_get_main_queue(void) {
    return (__bridge dispatch_queue_t)(void*)&_dispatch_main_q;
}
}
