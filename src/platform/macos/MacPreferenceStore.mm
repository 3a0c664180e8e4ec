// SPDX-License-Identifier: MIT
// A text that spells a number, as the `defaults` tool writes it without a type, reads as that
// number: the system's own rule, which its users know.
#include "platform/macos/MacPreferenceStore.h"

#include "platform/macos/MacString.h"

#import <Foundation/Foundation.h>

namespace zephrine {

double MacPreferenceStore::doubleForKey(std::string_view key) const {
    return [NSUserDefaults.standardUserDefaults doubleForKey:nsString(key)];
}

bool MacPreferenceStore::boolForKey(std::string_view key) const {
    // Compared, not converted: BOOL is a number on x86_64 and a bool on arm64.
    return [NSUserDefaults.standardUserDefaults boolForKey:nsString(key)] != NO;
}

void MacPreferenceStore::setDouble(double value, std::string_view key) {
    [NSUserDefaults.standardUserDefaults setDouble:value forKey:nsString(key)];
}

void MacPreferenceStore::setInteger(std::int64_t value, std::string_view key) {
    [NSUserDefaults.standardUserDefaults setInteger:value forKey:nsString(key)];
}

void MacPreferenceStore::setBool(bool value, std::string_view key) {
    [NSUserDefaults.standardUserDefaults setBool:value ? YES : NO forKey:nsString(key)];
}

}  // namespace zephrine
