// SPDX-License-Identifier: MIT
// The settings window on AppKit's views has the controls of the table that its design fixes.
#include <gtest/gtest.h>

#include "platform/macos/MacApplication.h"
#include "platform/macos/MacGeometry.h"
#include "platform/macos/MacString.h"
#include "platform/macos/ShownViews.h"
#include "platform/macos/widgets/MacView.h"
#include "settings/SettingsTable.h"
#include "settings/SettingsWindow.h"

namespace zephrine {
namespace {

class MacSettings : public testing::Test {
protected:
    void SetUp() override {
        shown = subviewsOf(nativeView(*settings.loginButton).superview);
        ASSERT_EQ(shown.size(), table.size());
    }

    /// Calls `compare` with each label and its row of the table.
    template <typename Compare>
    void forEachLabel(Compare compare) {
        int labels = 0;
        for (std::size_t i = 0; i < table.size(); ++i) {
            if (NSTextField* label = as<NSTextField>(shown[i])) {
                SCOPED_TRACE("control " + std::to_string(i + 1) + " " + table[i].text);
                compare(label, table[i]);
                ++labels;
            }
        }
        EXPECT_EQ(labels, 6);
    }

    MacApplication application;
    SettingsWindow settings{application};
    const std::vector<SettingsElement> table = settingsTable();
    std::vector<NSView*> shown;
};

TEST_F(MacSettings, StandInAWindowThatCanBeClosedAndNothingElse) {
    NSView* content = nativeView(*settings.loginButton).superview;
    EXPECT_EQ(utf8String(content.window.title), "Zephrine Settings");
    EXPECT_EQ(content.window.styleMask, NSWindowStyleMaskTitled | NSWindowStyleMaskClosable);
    EXPECT_FALSE(content.window.releasedWhenClosed);
    EXPECT_EQ(fromNSRect(content.window.contentView.frame), (Rect{0, 0, 400, 310}));
    EXPECT_EQ(fromNSRect(content.frame), (Rect{0, 0, 400, 310}));
}

TEST_F(MacSettings, AreOfTheKindsOfTheTableInItsOrder) {
    for (std::size_t i = 0; i < table.size(); ++i) {
        const std::string kind = table[i].kind == "check box" ? "button" : table[i].kind;
        EXPECT_EQ(kindOf(shown[i]), kind) << "control " << i + 1;
    }
}

TEST_F(MacSettings, StandInTheFramesOfTheTable) {
    for (std::size_t i = 0; i < table.size(); ++i) {
        EXPECT_EQ(fromNSRect(shown[i].frame), table[i].frame) << "control " << i + 1;
    }
}

TEST_F(MacSettings, CarryTheTextsOfTheTable) {
    forEachLabel([](NSTextField* label, const SettingsElement& row) {
        EXPECT_EQ(utf8String(label.stringValue), row.text);
    });
    EXPECT_EQ(utf8String(as<NSButton>(nativeView(*settings.loginButton)).title), table[1].text);
}

TEST_F(MacSettings, UseTheFontsAndColorsOfTheTable) {
    NSFont* ownFont = [NSTextField labelWithString:@""].font;
    forEachLabel([ownFont](NSTextField* label, const SettingsElement& row) {
        EXPECT_TRUE(row.font ? hasFont(label, *row.font) : [label.font isEqual:ownFont]);
        EXPECT_TRUE(hasColor(label, row.color));
    });
}

TEST_F(MacSettings, OfferTheItemsOfTheTableWithTheFirstOneSelected) {
    int popUps = 0;
    for (std::size_t i = 0; i < table.size(); ++i) {
        if (NSPopUpButton* popUp = as<NSPopUpButton>(shown[i])) {
            std::vector<std::string> items;
            for (NSString* title in popUp.itemTitles) {
                items.push_back(utf8String(title));
            }
            EXPECT_EQ(items, table[i].items);
            EXPECT_EQ(utf8String(popUp.accessibilityLabel), table[i].accessibilityLabel);
            EXPECT_EQ(popUp.indexOfSelectedItem, 0);
            EXPECT_FALSE(popUp.pullsDown);
            ++popUps;
        }
    }
    EXPECT_EQ(popUps, 3);
}

}  // namespace
}  // namespace zephrine
