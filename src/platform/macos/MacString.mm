// SPDX-License-Identifier: MIT
#include "platform/macos/MacString.h"

#include "text/SingleLine.h"
#include "text/UTF8.h"

namespace zephrine {

namespace {

NSString* decoded(std::string_view text) {
    return [[NSString alloc] initWithBytes:text.data()
                                    length:text.size()
                                  encoding:NSUTF8StringEncoding];
}

}  // namespace

NSString* nsString(std::string_view text) {
    NSString* string = decoded(text);
    if (string == nil) {
        string = decoded(repairedUTF8(text));
    }
    return string != nil ? string : @"";
}

NSString* nsLine(std::string_view text) {
    return nsString(singleLine(text));
}

std::string utf8String(NSString* text) {
    // Null also for text with half a surrogate pair, which has no UTF-8.
    const char* bytes = text.UTF8String;
    if (bytes == nullptr) {
        return {};
    }
    return {bytes, [text lengthOfBytesUsingEncoding:NSUTF8StringEncoding]};
}

}  // namespace zephrine
