// SPDX-License-Identifier: MIT
#include "platform/macos/MacFormatting.h"

#include "platform/macos/MacString.h"

#import <Foundation/Foundation.h>

namespace zephrine {

std::string MacFormatting::stringFromByteCount(std::int64_t bytes) const {
    return utf8String([NSByteCountFormatter
        stringFromByteCount:bytes
                 countStyle:NSByteCountFormatterCountStyleMemory]);
}

std::string MacFormatting::localizedNumber(double value) const {
    return utf8String([NSNumberFormatter localizedStringFromNumber:@(value)
                                                       numberStyle:NSNumberFormatterDecimalStyle]);
}

}  // namespace zephrine
