// SPDX-License-Identifier: MIT
#include "platform/macos/widgets/MacWidgetFactory.h"

#include <gtest/gtest.h>

#include "contract/WidgetContract.h"
#include "platform/macos/widgets/MacView.h"

#import <AppKit/AppKit.h>

namespace zephrine {
namespace {

struct MacWidgetHarness {
    WidgetFactory& factory() { return widgets; }
    void press(View& control) {
        NSControl* native = static_cast<NSControl*>(nativeView(control));
        [native performClick:nil];
    }
    void press(SegmentedControl& control, int index) {
        NSSegmentedControl* native = static_cast<NSSegmentedControl*>(nativeView(control));
        native.selectedSegment = index;
        [native sendAction:native.action to:native.target];
    }

    MacWidgetFactory widgets;
};

INSTANTIATE_TYPED_TEST_SUITE_P(Mac, WidgetContract, MacWidgetHarness);

TEST(MacWidgets, ShowAContentInTheContainerThatWasGivenItLast) {
    MacWidgetFactory make;
    const auto content = make.makeView({0, 0, 360, 660});
    NSView* first = [[NSView alloc] initWithFrame:NSRect{}];
    NSView* second = [[NSView alloc] initWithFrame:NSRect{}];
    setContent(first, *content);
    EXPECT_EQ(nativeView(*content).superview, first);
    setContent(second, *content);
    EXPECT_EQ(nativeView(*content).superview, second);
    EXPECT_EQ(first.subviews.count, 0U);
}

TEST(MacWidgets, MakeAnElementOfAViewThatIsNamed) {
    MacWidgetFactory make;
    const auto canvas = make.makeCanvas();
    canvas->setAccessibilityLabel("usage history");
    canvas->setAccessibilityValue("CPU 7 percent");
    NSView* native = nativeView(*canvas);
    EXPECT_TRUE(native.accessibilityElement);
    EXPECT_TRUE([native.accessibilityLabel isEqualToString:@"usage history"]);
    EXPECT_TRUE([native.accessibilityValue isEqual:@"CPU 7 percent"]);
}

TEST(MacWidgets, KeepPopUpItemsOfTheSameTitle) {
    MacWidgetFactory make;
    const auto popUp = make.makePopUpButton({"same", "same"});
    EXPECT_EQ(popUp->indexOfSelectedItem(), 0);
    popUp->selectItem(1);
    EXPECT_EQ(popUp->indexOfSelectedItem(), 1);
    popUp->selectItem(-1);
    EXPECT_EQ(popUp->indexOfSelectedItem(), -1);
}

}  // namespace
}  // namespace zephrine
