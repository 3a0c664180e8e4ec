// SPDX-License-Identifier: MIT
// The registry of devices and drivers. Looking services up consumes the matching dictionary.
#pragma once
#include <CoreFoundation/CoreFoundation.h>
#include <mach/mach.h>
#ifdef __cplusplus
extern "C" {
#endif
typedef mach_port_t io_object_t;
typedef io_object_t io_iterator_t, io_registry_entry_t, io_service_t;
typedef uint32_t IOOptionBits;
#define IO_OBJECT_NULL ((io_object_t)0)
extern const mach_port_t kIOMainPortDefault __attribute__((availability(macos, introduced = 12.0)));
CFMutableDictionaryRef IOServiceMatching(const char* name) __attribute__((cf_returns_retained));
kern_return_t IOServiceGetMatchingServices(mach_port_t mainPort,
                                           CFDictionaryRef matching __attribute__((cf_consumed)),
                                           io_iterator_t* existing);
io_object_t IOIteratorNext(io_iterator_t iterator);
kern_return_t IOObjectRelease(io_object_t object);
CFTypeRef IORegistryEntryCreateCFProperty(io_registry_entry_t entry, CFStringRef key,
                                          CFAllocatorRef allocator, IOOptionBits options)
    __attribute__((cf_returns_retained));
#ifdef __cplusplus
}
#endif
