// SPDX-License-Identifier: MIT
// What the controls of every back end keep to. A harness gives a suite its factory as `factory()`
// and does what a user does: `press(Button&)` and `press(SegmentedControl&, index)`.
//
// Use: INSTANTIATE_TYPED_TEST_SUITE_P(Mine, WidgetContract, MyHarness);
#pragma once

#include <gtest/gtest.h>

#include <string>

#include "platform/Widgets.h"

namespace zephrine {

template <typename Harness>
struct WidgetContract : testing::Test {
    Harness harness;
    int calls = 0;

    WidgetFactory& make() { return harness.factory(); }
    std::function<void()> count() {
        return [this] { ++calls; };
    }
};
TYPED_TEST_SUITE_P(WidgetContract);

TYPED_TEST_P(WidgetContract, KeepsFramesAsTheyWereSet) {
    const auto view = this->make().makeView({0, 0, 360, 660});
    EXPECT_EQ(view->frame(), (Rect{0, 0, 360, 660}));
    const auto label = this->make().makeLabel("text");
    label->setFrame({20, 530, 110, 34});
    EXPECT_EQ(label->frame(), (Rect{20, 530, 110, 34}));
    view->addSubview(*label);
    EXPECT_EQ(label->frame(), (Rect{20, 530, 110, 34}));
}

TYPED_TEST_P(WidgetContract, GivesBackTheTextOfALabelAsItWasSet) {
    const auto label = this->make().makeLabel("\xE2\x80\x94");
    EXPECT_EQ(label->stringValue(), "\xE2\x80\x94");
    for (const std::string text : {"<b>Fish & Chips</b>", "two\nlines", "", "not UTF-8: \xff"}) {
        label->setStringValue(text);
        EXPECT_EQ(label->stringValue(), text);
    }
}

TYPED_TEST_P(WidgetContract, TakesEverySettingOfALabel) {
    const auto label = this->make().makeLabel("text");
    label->setFont({FontFamily::monospacedDigit, 27, FontWeight::medium});
    label->setTextColor(Color::systemRedColor);
    label->setAlignment(TextAlignment::right);
    label->setLineBreakMode(LineBreakMode::truncatingTail);
    label->setToolTip("<i>tip</i>");
    label->setAccessibilityLabel("name");
    label->setAccessibilityValue("value");
    EXPECT_EQ(label->stringValue(), "text");
}

TYPED_TEST_P(WidgetContract, CallsTheActionOfAButtonOnceAPress) {
    const auto button = this->make().makeButton("Quit");
    button->setAction(this->count());
    EXPECT_EQ(this->calls, 0);
    this->harness.press(*button);
    EXPECT_EQ(this->calls, 1);
}

TYPED_TEST_P(WidgetContract, SelectsSegmentsWithoutCallingTheAction) {
    const auto control = this->make().makeSegmentedControl({"CPU", "RAM"});
    control->setAction(this->count());
    EXPECT_EQ(control->selectedSegment(), -1);
    control->setSelectedSegment(0);
    EXPECT_EQ(control->selectedSegment(), 0);
    control->setSelectedSegment(1);
    EXPECT_EQ(control->selectedSegment(), 1);
    control->setSelectedSegment(-1);
    EXPECT_EQ(control->selectedSegment(), -1);
    EXPECT_EQ(this->calls, 0);
}

TYPED_TEST_P(WidgetContract, SelectsTheSegmentThatIsPressedBeforeItCallsTheAction) {
    const auto control = this->make().makeSegmentedControl({"CPU", "RAM"});
    control->setSelectedSegment(0);
    int seen = -2;
    control->setAction([&] { seen = control->selectedSegment(); });
    this->harness.press(*control, 1);
    EXPECT_EQ(seen, 1);
}

TYPED_TEST_P(WidgetContract, LetsAViewGoBeforeOrAfterItsChildren) {
    const auto outlives = this->make().makeLabel("outlives its parent");
    {
        const auto view = this->make().makeView({0, 0, 100, 100});
        const auto goesFirst = this->make().makeButton("goes first");
        view->addSubview(*goesFirst);
        view->addSubview(*outlives);
    }
    outlives->setFrame({1, 2, 3, 4});
    EXPECT_EQ(outlives->stringValue(), "outlives its parent");
    const auto next = this->make().makeView({0, 0, 100, 100});
    next->addSubview(*outlives);
    EXPECT_EQ(outlives->frame(), (Rect{1, 2, 3, 4}));
}

TYPED_TEST_P(WidgetContract, FindsTheImageOfTheApplication) {
    const auto image = this->make().makeImageView();
    EXPECT_TRUE(image->setImageNamed("AppIcon"));
    image->setApplicationIcon();
}

REGISTER_TYPED_TEST_SUITE_P(WidgetContract, KeepsFramesAsTheyWereSet,
                            GivesBackTheTextOfALabelAsItWasSet, TakesEverySettingOfALabel,
                            CallsTheActionOfAButtonOnceAPress,
                            SelectsSegmentsWithoutCallingTheAction,
                            SelectsTheSegmentThatIsPressedBeforeItCallsTheAction,
                            LetsAViewGoBeforeOrAfterItsChildren, FindsTheImageOfTheApplication);

}  // namespace zephrine
