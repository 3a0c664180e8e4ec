// SPDX-License-Identifier: MIT
// The platform's fonts by role.
#pragma once

#include "platform/Font.h"

#import <AppKit/AppKit.h>

namespace zephrine {

NSFont* nsFont(const Font& font);

}  // namespace zephrine
