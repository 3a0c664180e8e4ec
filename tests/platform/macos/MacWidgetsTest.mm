// SPDX-License-Identifier: MIT
#include "platform/macos/widgets/MacWidgetFactory.h"

#include <gtest/gtest.h>

#include "contract/WidgetContract.h"
#include "platform/macos/MacString.h"
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

TEST(MacWidgets, ShowALineBreakAsASpaceWithoutTheFieldsSingleLineMode) {
    MacWidgetFactory make;
    const auto label = make.makeLabel("two\nlines");
    NSTextField* native = static_cast<NSTextField*>(nativeView(*label));
    EXPECT_EQ(utf8String(native.stringValue), "two lines");
    label->setStringValue("three\r\nmore");
    EXPECT_EQ(utf8String(native.stringValue), "three  more");
    // It would fix the baseline, whatever the font.
    EXPECT_FALSE(native.usesSingleLineMode);
    EXPECT_FALSE(native.editable);
    EXPECT_FALSE(native.selectable);
}

TEST(MacWidgets, TickTheCheckBoxThatIsClickedAndTellAsMuch) {
    MacWidgetFactory make;
    const auto box = make.makeCheckBox("Launch Zephrine at login");
    NSButton* native = static_cast<NSButton*>(nativeView(*box));
    EXPECT_EQ(native.state, NSControlStateValueOff);
    EXPECT_FALSE(box->isOn());
    box->setOn(true);
    EXPECT_EQ(native.state, NSControlStateValueOn);
    EXPECT_TRUE(box->isOn());
    int calls = 0;
    box->setAction([&] { ++calls; });
    [native performClick:nil];
    EXPECT_EQ(native.state, NSControlStateValueOff);
    EXPECT_FALSE(box->isOn());
    EXPECT_EQ(calls, 1);
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
