// SPDX-License-Identifier: MIT
#include "platform/macos/widgets/MacView.h"

#include "platform/Trap.h"
#include "platform/macos/MacGeometry.h"
#include "platform/macos/MacString.h"

namespace zephrine {

MacView::~MacView() {
    [view_ removeFromSuperview];
}

void MacView::setFrame(const Rect& frame) {
    if (!(frame == MacView::frame())) {
        view_.frame = nsRect(frame);
    }
}

Rect MacView::frame() const {
    return fromNSRect(view_.frame);
}

void MacView::addSubview(View& child) {
    [view_ addSubview:nativeView(child)];
}

void MacView::setAccessibilityLabel(const std::string& label) {
    // Controls are elements already; a plain view is invisible to a screen reader until it is
    // declared to be one.
    if (![view_ isKindOfClass:NSControl.class]) {
        view_.accessibilityElement = YES;
    }
    view_.accessibilityLabel = nsString(label);
}

void MacView::setAccessibilityValue(const std::string& value) {
    view_.accessibilityValue = nsString(value);
}

void MacView::setToolTip(const std::string& text) {
    NSString* toolTip = nsLine(text);
    if (![view_.toolTip isEqualToString:toolTip]) {
        view_.toolTip = toolTip;
    }
}

NSView* nativeView(View& view) {
    const auto* ours = dynamic_cast<const MacView*>(&view);
    trapUnless(ours != nullptr);
    return ours->view();
}

}  // namespace zephrine
