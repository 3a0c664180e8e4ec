// SPDX-License-Identifier: MIT
// The seam's geometry is the platform's: points, origin at the lower left, y upwards. Nothing is
// flipped anywhere; only the types differ. The system's headers have a Point, a Size and a Rect of
// their own in the global namespace: ours are always named with their namespace outside it.
#pragma once

#include "platform/Geometry.h"

#import <Foundation/Foundation.h>

namespace zephrine {

inline NSPoint nsPoint(Point point) {
    return NSMakePoint(point.x, point.y);
}

inline NSSize nsSize(Size size) {
    return NSMakeSize(size.width, size.height);
}

inline NSRect nsRect(const Rect& rect) {
    return NSMakeRect(rect.x, rect.y, rect.width, rect.height);
}

inline Size fromNSSize(NSSize size) {
    return {size.width, size.height};
}

inline Rect fromNSRect(NSRect rect) {
    return {rect.origin.x, rect.origin.y, rect.size.width, rect.size.height};
}

}  // namespace zephrine
