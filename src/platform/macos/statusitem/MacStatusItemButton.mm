// SPDX-License-Identifier: MIT
#include "platform/macos/statusitem/MacStatusItemButton.h"

#include <utility>

#include "platform/macos/MacString.h"
#include "platform/macos/drawing/MacDrawing.h"

namespace zephrine {

MacStatusItemButton::MacStatusItemButton(NSStatusBarButton* button) : button_(button) {
    button_.target = action_;
    button_.action = @selector(runHandler:);
}

std::optional<Appearance> MacStatusItemButton::effectiveAppearance() {
    // The bar follows the wallpaper, not the applications, and has vibrant appearances of its own:
    // only a best match tells light from dark.
    NSAppearanceName match = [button_.effectiveAppearance
        bestMatchFromAppearancesWithNames:@[ NSAppearanceNameAqua, NSAppearanceNameDarkAqua ]];
    if (match == nil) {
        return std::nullopt;
    }
    return [match isEqualToString:NSAppearanceNameDarkAqua] ? Appearance::darkAqua
                                                            : Appearance::aqua;
}

void MacStatusItemButton::setToolTip(const std::string& text) {
    NSString* toolTip = nsString(text);
    if (![button_.toolTip isEqualToString:toolTip]) {
        button_.toolTip = toolTip;
    }
}

void MacStatusItemButton::setAccessibilityLabel(const std::string& text) {
    NSString* label = nsString(text);
    if (![button_.accessibilityLabel isEqualToString:label]) {
        button_.accessibilityLabel = label;
    }
}

void MacStatusItemButton::setImage(StatusItemImage image) {
    button_.image = nsImage(image.wide);
}

void MacStatusItemButton::setAction(std::function<void()> action) {
    [action_ setHandler:std::move(action)];
}

}  // namespace zephrine
