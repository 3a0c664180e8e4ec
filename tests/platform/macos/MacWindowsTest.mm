// SPDX-License-Identifier: MIT
// AppKit's popover and windows keep to the contract of all of them.
#include <gtest/gtest.h>

#include "contract/WindowsContract.h"
#include "platform/macos/statusitem/MacStatusBar.h"
#include "platform/macos/statusitem/MacStatusItemButton.h"
#include "platform/macos/widgets/MacView.h"
#include "platform/macos/widgets/MacWidgetFactory.h"
#include "platform/macos/windows/MacWindowFactory.h"

#import <AppKit/AppKit.h>

namespace zephrine {
namespace {

struct MacWindowsHarness {
    MacWindowsHarness() {
        NSView* native = static_cast<MacStatusItemButton&>(button()).view();
        waitFor([native] { return native.window.visible != NO; });
    }
    WindowFactory& windows() { return windowFactory; }
    WidgetFactory& widgets() { return widgetFactory; }
    StatusItemButton& button() { return *item->button(); }
    const void* placeOf(View& view) { return (__bridge const void*)nativeView(view).superview; }
    void dismiss(View& view) { [nativeView(view).window cancelOperation:nil]; }
    void closeWindowOf(View& view) { [nativeView(view).window performClose:nil]; }
    template <typename Condition>
    void waitFor(Condition condition) {
        for (int tries = 0; tries < 500 && !condition(); ++tries) {
            [NSRunLoop.mainRunLoop runUntilDate:[NSDate dateWithTimeIntervalSinceNow:0.01]];
        }
    }

    MacWidgetFactory widgetFactory;
    MacWindowFactory windowFactory;
    MacStatusBar bar;
    std::unique_ptr<StatusItem> item = bar.statusItemWithLength(74);
};

INSTANTIATE_TYPED_TEST_SUITE_P(Mac, WindowsContract, MacWindowsHarness);

TEST(MacPopover, ShowsNothingAndTakesNothingWhileTheItemIsHidden) {
    MacWindowsHarness harness;
    const auto content = harness.widgets().makeView({0, 0, 360, 500});
    const auto popover = harness.windows().makePopover();
    const auto window = harness.windows().makeWindow("Inspection", {360, 500});
    popover->setContentView(*content);
    window->setContentView(*content);
    const void* const inWindow = harness.placeOf(*content);
    MacStatusItemButton hidden([[NSStatusBarButton alloc] initWithFrame:NSRect{}]);
    popover->showRelativeTo(hidden);
    EXPECT_FALSE(popover->isShown());
    EXPECT_EQ(harness.placeOf(*content), inWindow);
}

TEST(MacPopover, OpensEmptyOnceItsContentHasGone) {
    MacWindowsHarness harness;
    const auto popover = harness.windows().makePopover();
    auto content = harness.widgets().makeView({0, 0, 360, 500});
    popover->setContentView(*content);
    content.reset();
    popover->setContentSize({360, 500});
    popover->showRelativeTo(harness.button());
    EXPECT_TRUE(popover->isShown());
    popover->performClose();
    EXPECT_FALSE(popover->isShown());
}

}  // namespace
}  // namespace zephrine
