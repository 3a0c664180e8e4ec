// SPDX-License-Identifier: MIT
// What all controls have: a frame, children, a spoken name and a tool tip.
#pragma once

#include "platform/Widgets.h"

#import <AppKit/AppKit.h>

namespace zephrine {

class MacView : public virtual View {
public:
    explicit MacView(NSView* view) : view_(view) {}
    /// AppKit's parents retain their children: a view leaves its parent when its owner lets it go.
    ~MacView() override;
    MacView(const MacView&) = delete;
    MacView& operator=(const MacView&) = delete;

    void setFrame(const Rect& frame) override;
    [[nodiscard]] Rect frame() const override;
    void addSubview(View& child) override;
    void setAccessibilityLabel(const std::string& label) override;
    void setAccessibilityValue(const std::string& value) override;
    void setToolTip(const std::string& text) override;

    [[nodiscard]] NSView* view() const { return view_; }

private:
    NSView* view_;
};

/// The native side of a view that this back end made, which all views are here.
NSView* nativeView(View& view);

}  // namespace zephrine
