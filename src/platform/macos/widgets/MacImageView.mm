// SPDX-License-Identifier: MIT
#include "platform/macos/widgets/MacImageView.h"

#include "platform/macos/MacString.h"

namespace zephrine {

MacImageView::MacImageView() : MacImageView([[NSImageView alloc] initWithFrame:NSRect{}]) {}

MacImageView::MacImageView(NSImageView* view) : MacView(view), imageView_(view) {
    imageView_.imageScaling = NSImageScaleProportionallyUpOrDown;
}

bool MacImageView::setImageNamed(const std::string& name) {
    NSImage* image = [NSImage imageNamed:nsString(name)];
    if (image == nil) {
        return false;
    }
    imageView_.image = image;
    return true;
}

void MacImageView::setApplicationIcon() {
    imageView_.image = NSApplication.sharedApplication.applicationIconImage;
}

}  // namespace zephrine
