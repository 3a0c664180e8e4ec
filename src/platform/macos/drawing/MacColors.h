// SPDX-License-Identifier: MIT
// The platform's colours by meaning.
#pragma once

#include "platform/Color.h"

#import <AppKit/AppKit.h>

namespace zephrine {

/// A dynamic colour: it takes on its value when it is set for drawing, in the appearance that is
/// current then. Never ask it for components ahead of that.
NSColor* nsColor(Color color);

}  // namespace zephrine
