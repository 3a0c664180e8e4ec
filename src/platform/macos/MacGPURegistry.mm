// SPDX-License-Identifier: MIT
// References: a service carries one, which the caller gives back; the iterator and the property
// are given back here. Reading the registry asks no driver to do anything, so no GPU is woken.
#include "platform/macos/MacGPURegistry.h"

#include <string>
#include <utility>

#include "platform/macos/GPUProperty.h"
#include "platform/macos/MacString.h"

#import <Foundation/Foundation.h>
#import <IOKit/IOKitLib.h>

namespace zephrine {

namespace {

/// A flag is a number to Objective-C, but not a figure that a driver measured.
bool isNumber(id object) {
    return [object isKindOfClass:NSNumber.class] &&
           CFGetTypeID((__bridge CFTypeRef)object) != CFBooleanGetTypeID();
}

std::optional<std::variant<double, std::string>> scalar(id object) {
    if (isNumber(object)) {
        NSNumber* number = object;
        return number.doubleValue;
    }
    if ([object isKindOfClass:NSString.class]) {
        return utf8String(object);
    }
    return std::nullopt;
}

std::vector<PropertyEntry> entriesOf(NSDictionary<id, id>* dictionary) {
    std::vector<PropertyEntry> entries;
    for (id key in dictionary) {
        PropertyEntry entry;
        if ([key isKindOfClass:NSString.class]) {
            entry.key = utf8String(key);
        }
        entry.value = scalar(dictionary[key]);
        entries.push_back(std::move(entry));
    }
    return entries;
}

std::optional<Property> propertyOf(id object) {
    if ([object isKindOfClass:NSDictionary.class]) {
        auto dictionary = propertyDictionary(entriesOf(object));
        return dictionary ? std::optional<Property>(std::move(*dictionary)) : std::nullopt;
    }
    auto value = scalar(object);
    if (!value) {
        return std::nullopt;
    }
    return std::visit([](auto& held) { return Property(std::move(held)); }, *value);
}

}  // namespace

std::optional<std::vector<GPUService>> MacGPURegistry::IOServiceGetMatchingServices(
    std::string_view name) {
    io_iterator_t iterator = IO_OBJECT_NULL;
    // The matching dictionary is consumed by the look-up, also by one that fails: releasing it
    // here would be once too often.
    if (::IOServiceGetMatchingServices(kIOMainPortDefault,
                                       ::IOServiceMatching(std::string(name).c_str()),
                                       &iterator) != KERN_SUCCESS) {
        return std::nullopt;
    }
    std::vector<GPUService> services;
    while (const io_object_t service = ::IOIteratorNext(iterator)) {
        services.push_back(service);
    }
    ::IOObjectRelease(iterator);
    return services;
}

const Property* MacGPURegistry::IORegistryEntryCreateCFProperty(GPUService service,
                                                                std::string_view key) {
    // The main thread's pool is emptied only with its next event, which for a program in the
    // status bar can be hours away.
    @autoreleasepool {
        // A new reference, or none: handed over to ARC, which releases it.
        const id object = (__bridge_transfer id)::IORegistryEntryCreateCFProperty(
            service, (__bridge CFStringRef)nsString(key), kCFAllocatorDefault, 0);
        property_ = object != nil ? propertyOf(object) : std::nullopt;
    }
    return property_ ? &*property_ : nullptr;
}

void MacGPURegistry::IOObjectRelease(GPUService service) {
    ::IOObjectRelease(service);
}

}  // namespace zephrine
