// SPDX-License-Identifier: MIT
// The dashboard on AppKit's views has the elements of the table that its design fixes.
#include <gtest/gtest.h>

#include "dashboard/Dashboard.h"
#include "dashboard/DashboardTable.h"
#include "platform/macos/MacApplication.h"
#include "platform/macos/MacFormatting.h"
#include "platform/macos/MacGeometry.h"
#include "platform/macos/MacString.h"
#include "platform/macos/ShownViews.h"
#include "platform/macos/widgets/MacView.h"

namespace zephrine {
namespace {

class MacDashboard : public testing::Test {
protected:
    void SetUp() override {
        dashboard.loadView();
        shown = subviewsOf(nativeView(dashboard.view()));
        ASSERT_EQ(shown.size(), table.size());
    }

    /// Calls `compare` with each label and its row of the table.
    template <typename Compare>
    void forEachLabel(Compare compare) {
        int labels = 0;
        for (std::size_t i = 0; i < table.size(); ++i) {
            if (NSTextField* label = as<NSTextField>(shown[i])) {
                SCOPED_TRACE("element " + std::to_string(i + 1) + " " + table[i].text);
                compare(label, table[i]);
                ++labels;
            }
        }
        EXPECT_EQ(labels, 29);
    }

    MacApplication application;
    MacFormatting formatting;
    Dashboard dashboard{application, formatting};
    const std::vector<DashboardElement> table = dashboardTable();
    std::vector<NSView*> shown;
};

TEST_F(MacDashboard, HasTheKindsOfTheTableInItsOrder) {
    for (std::size_t i = 0; i < table.size(); ++i) {
        EXPECT_EQ(kindOf(shown[i]), table[i].kind) << "element " << i + 1;
    }
}

TEST_F(MacDashboard, StandsInTheFramesOfTheTable) {
    EXPECT_EQ(fromNSRect(nativeView(dashboard.view()).frame), (Rect{0, 0, 360, 660}));
    for (std::size_t i = 0; i < table.size(); ++i) {
        EXPECT_EQ(fromNSRect(shown[i].frame), table[i].frame) << "element " << i + 1;
    }
}

TEST_F(MacDashboard, CarriesTheTextsOfTheTable) {
    forEachLabel([](NSTextField* label, const DashboardElement& row) {
        EXPECT_EQ(utf8String(label.stringValue), row.text);
    });
    for (std::size_t i = 0; i < table.size(); ++i) {
        if (NSButton* button = as<NSButton>(shown[i])) {
            EXPECT_EQ(utf8String(button.title), table[i].text);
            EXPECT_EQ(button.bezelStyle, NSBezelStyleRounded);
        }
    }
}

TEST_F(MacDashboard, UsesTheFontsOfTheTable) {
    forEachLabel([](NSTextField* label, const DashboardElement& row) {
        EXPECT_TRUE(hasFont(label, *row.font));
    });
}

TEST_F(MacDashboard, UsesTheColorsOfTheTable) {
    forEachLabel([](NSTextField* label, const DashboardElement& row) {
        EXPECT_TRUE(hasColor(label, row.color));
    });
}

TEST_F(MacDashboard, AlignsAndCutsTextsAsInTheTable) {
    forEachLabel([](NSTextField* label, const DashboardElement& row) {
        EXPECT_EQ(label.alignment, alignmentFor(row.alignment));
        EXPECT_EQ(label.lineBreakMode, row.lineBreakMode == LineBreakMode::truncatingTail
                                           ? NSLineBreakByTruncatingTail
                                           : NSLineBreakByClipping);
    });
}

TEST_F(MacDashboard, HasRoomForTheLargeFigures) {
    for (Label* figure : {dashboard.cpu.get(), dashboard.ram.get(), dashboard.gpu.get()}) {
        figure->setStringValue("100%");
        NSView* native = nativeView(*figure);
        EXPECT_LE(native.intrinsicContentSize.height, native.frame.size.height);
        EXPECT_LE(native.intrinsicContentSize.width, native.frame.size.width);
    }
}

TEST_F(MacDashboard, SortsByTheSegmentThatIsSelected) {
    NSSegmentedControl* sort = as<NSSegmentedControl>(nativeView(*dashboard.processSort));
    ASSERT_EQ(sort.segmentCount, 2);
    EXPECT_EQ(utf8String([sort labelForSegment:0]), "CPU");
    EXPECT_EQ(utf8String([sort labelForSegment:1]), "RAM");
    EXPECT_EQ(sort.selectedSegment, 0);
    EXPECT_EQ(utf8String(sort.accessibilityLabel), "Sort top processes");
}

}  // namespace
}  // namespace zephrine
