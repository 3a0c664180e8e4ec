// SPDX-License-Identifier: MIT
// What AppKit was told of a view, in the words of the tables that the windows are compared with.
// Fonts, colours and the rest are asked of AppKit by name here once more: the back end's own
// translation is what is tested.
#pragma once

#include <string>
#include <vector>

#include "platform/Color.h"
#include "platform/Font.h"
#include "platform/Widgets.h"

#import <AppKit/AppKit.h>

namespace zephrine {

/// The views of `superview` in the order of adding.
inline std::vector<NSView*> subviewsOf(NSView* superview) {
    std::vector<NSView*> views;
    for (NSView* view in superview.subviews) {
        views.push_back(view);
    }
    return views;
}

/// The view as a `Kind`, nil when it is none.
template <typename Kind>
Kind* as(NSView* view) {
    return [view isKindOfClass:[Kind class]] ? static_cast<Kind*>(view) : nil;
}

/// A check box and a push button are one class of AppKit's: both are a "button".
inline std::string kindOf(NSView* view) {
    if (as<NSTextField>(view) != nil) {
        return "label";
    }
    if (as<NSImageView>(view) != nil) {
        return "image";
    }
    if (as<NSSegmentedControl>(view) != nil) {
        return "segments";
    }
    if (as<NSPopUpButton>(view) != nil) {
        return "pop-up";
    }
    if (as<NSButton>(view) != nil) {
        return "button";
    }
    if (as<NSBox>(view) != nil) {
        return as<NSBox>(view).boxType == NSBoxSeparator ? "separator" : "box";
    }
    return [view.accessibilityRole isEqualToString:NSAccessibilityImageRole] ? "canvas" : "view";
}

inline bool hasFont(NSTextField* label, const Font& font) {
    const CGFloat weight = font.weight == FontWeight::semibold ? NSFontWeightSemibold
                           : font.weight == FontWeight::medium ? NSFontWeightMedium
                                                               : NSFontWeightRegular;
    NSFont* expected = font.family == FontFamily::monospacedDigit
                           ? [NSFont monospacedDigitSystemFontOfSize:font.size weight:weight]
                           : [NSFont systemFontOfSize:font.size weight:weight];
    return [label.font isEqual:expected];
}

inline bool hasColor(NSTextField* label, Color color) {
    NSColor* expected = color == Color::labelColor            ? NSColor.labelColor
                        : color == Color::secondaryLabelColor ? NSColor.secondaryLabelColor
                        : color == Color::systemBlueColor     ? NSColor.systemBlueColor
                        : color == Color::systemGreenColor    ? NSColor.systemGreenColor
                        : color == Color::systemPurpleColor   ? NSColor.systemPurpleColor
                                                              : nil;  // in none of the tables
    return [label.textColor isEqual:expected];
}

inline NSTextAlignment alignmentFor(TextAlignment alignment) {
    return alignment == TextAlignment::right  ? NSTextAlignmentRight
           : alignment == TextAlignment::left ? NSTextAlignmentLeft
                                              : NSTextAlignmentNatural;
}

}  // namespace zephrine
