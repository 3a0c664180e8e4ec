// SPDX-License-Identifier: MIT
// What assistive technology reads, over the same interface that Qt's bridge to it uses.
#include "platform/qt/widgets/Accessibility.h"

#include <gmock/gmock.h>

#include <QAccessibleActionInterface>

#include "platform/qt/TestApplication.h"
#include "platform/qt/statusitem/bus/PrivateBus.h"
#include "platform/qt/widgets/QtView.h"

namespace zephrine {
namespace {

QAccessibleInterface& read(View& view) {
    return *QAccessible::queryAccessibleInterface(&qtView(view).widget());
}

TEST(Accessibility, ReadsALabelAsItsText) {
    const auto label = testApplication().widgets().makeLabel("Fish & Chips <b>");
    EXPECT_EQ(read(*label).role(), QAccessible::StaticText);
    EXPECT_EQ(read(*label).text(QAccessible::Name), "Fish & Chips <b>");
}

TEST(Accessibility, ReadsAToolTipAsItsCharacters) {
    const auto label = testApplication().widgets().makeLabel("two\nlines");
    label->setToolTip("<img src='/x'>\n · PID 1");
    EXPECT_EQ(read(*label).text(QAccessible::Name), "two lines");
    EXPECT_EQ(read(*label).text(QAccessible::Description),
              QStringLiteral("<img src='/x'>  \u00B7 PID 1"));
}

TEST(Accessibility, ReadsAButtonByItsTitleAndPressesIt) {
    const auto button = testApplication().widgets().makeButton("Q&A");
    int pressed = 0;
    button->setAction([&] { ++pressed; });
    EXPECT_EQ(read(*button).role(), QAccessible::PushButton);
    EXPECT_EQ(read(*button).text(QAccessible::Name), "Q&A");
    read(*button).actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_TRUE(waitUntil([&] { return pressed == 1; }));
}

TEST(Accessibility, ReadsSegmentsAsANamedGroupOfRadioButtons) {
    const auto control = testApplication().widgets().makeSegmentedControl({"CPU", "RAM"});
    control->setAccessibilityLabel("Sort top processes");
    control->setSelectedSegment(1);
    QAccessibleInterface& group = read(*control);
    EXPECT_EQ(group.role(), QAccessible::Grouping);
    EXPECT_EQ(group.text(QAccessible::Name), "Sort top processes");
    ASSERT_EQ(group.childCount(), 2);
    EXPECT_EQ(group.child(0)->role(), QAccessible::RadioButton);
    EXPECT_EQ(group.child(0)->text(QAccessible::Name), "CPU");
    EXPECT_FALSE(group.child(0)->state().checked);
    EXPECT_TRUE(group.child(1)->state().checked);
}

TEST(Accessibility, ReadsACanvasByNameAndValue) {
    const auto canvas = testApplication().widgets().makeCanvas();
    canvas->setAccessibilityLabel("Usage history");
    canvas->setAccessibilityValue("CPU 42%");
    QAccessibleInterface& graph = read(*canvas);
    EXPECT_EQ(graph.role(), QAccessible::Graphic);
    EXPECT_EQ(graph.text(QAccessible::Name), "Usage history");
    EXPECT_EQ(graph.text(QAccessible::Value), "CPU 42%");
    EXPECT_EQ(graph.text(QAccessible::Description), "CPU 42%");
}

TEST(Accessibility, ReadsWindowsAsWindows) {
    const auto window = testApplication().windows().makeWindow("Dashboard", {100, 100});
    const auto content = testApplication().widgets().makeView({0, 0, 100, 100});
    window->setContentView(*content);
    EXPECT_EQ(QAccessible::queryAccessibleInterface(qtView(*content).widget().window())->role(),
              QAccessible::Window);
    const auto popover = testApplication().windows().makePopover();
    popover->setContentView(*content);
    EXPECT_EQ(QAccessible::queryAccessibleInterface(qtView(*content).widget().window())->role(),
              QAccessible::Dialog);
}

TEST(Accessibility, ReadsASeparatorAsOne) {
    const auto separator = testApplication().widgets().makeSeparator();
    EXPECT_EQ(read(*separator).role(), QAccessible::Separator);
}

}  // namespace
}  // namespace zephrine
