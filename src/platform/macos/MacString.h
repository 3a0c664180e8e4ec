// SPDX-License-Identifier: MIT
// Text between the seam's UTF-8 and the platform's strings.
#pragma once

#include <string>
#include <string_view>

#import <Foundation/Foundation.h>

namespace zephrine {

/// Never nil: bytes that are not UTF-8 become U+FFFD.
NSString* nsString(std::string_view text);

/// `text` on one line, as `singleLine` makes it, and otherwise like `nsString`.
NSString* nsLine(std::string_view text);

/// All of `text`, zero characters included; empty for nil.
std::string utf8String(NSString* text);

}  // namespace zephrine
