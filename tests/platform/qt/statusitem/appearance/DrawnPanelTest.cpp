// SPDX-License-Identifier: MIT
// Where a desktop that draws its panel itself has it.
#include "platform/qt/statusitem/appearance/DrawnPanel.h"

#include <gtest/gtest.h>

#include <vector>

namespace zephrine {
namespace {

const QRect kMonitor(0, 0, 1000, 760);

std::optional<QRect> panelBeside(const std::vector<std::uint32_t>& workAreas) {
    return drawnPanel(kMonitor, workAreas);
}

TEST(DrawnPanel, IsTheStripThatTheWorkAreaLeaves) {
    EXPECT_EQ(panelBeside({0, 0, 1000, 720}), QRect(0, 720, 1000, 40));
    EXPECT_EQ(panelBeside({0, 32, 1000, 728}), QRect(0, 0, 1000, 32));
    EXPECT_EQ(panelBeside({50, 0, 950, 760}), QRect(0, 0, 50, 760));
    EXPECT_EQ(panelBeside({0, 0, 940, 760}), QRect(940, 0, 60, 760));
}

TEST(DrawnPanel, IsTheBroadestOfSeveral) {
    EXPECT_EQ(panelBeside({0, 24, 1000, 696}), QRect(0, 720, 1000, 40));
}

TEST(DrawnPanel, IsAbsentWhereWindowsHaveTheWholeMonitor) {
    EXPECT_EQ(panelBeside({0, 0, 1000, 760}), std::nullopt);
}

TEST(DrawnPanel, IsLookedForOnItsMonitorAlone) {
    EXPECT_EQ(panelBeside({1000, 30, 800, 570, 0, 0, 1000, 720}), QRect(0, 720, 1000, 40));
    EXPECT_EQ(panelBeside({1000, 30, 800, 570}), std::nullopt);
    EXPECT_EQ(drawnPanel(QRect(1000, 0, 800, 600),
                         std::vector<std::uint32_t>{0, 0, 1000, 720, 1000, 30, 800, 570}),
              QRect(1000, 0, 800, 30));
}

TEST(DrawnPanel, IsAbsentForWorkAreasThatMakeNoSense) {
    EXPECT_EQ(panelBeside({}), std::nullopt);
    EXPECT_EQ(panelBeside({0, 0, 1000}), std::nullopt);
    EXPECT_EQ(panelBeside({0, 0, 0, 0}), std::nullopt);
    EXPECT_EQ(panelBeside({0, 0, 0xffffffff, 0xffffffff}), std::nullopt);
    EXPECT_EQ(panelBeside({0xfffffff0, 0, 1000, 720}), std::nullopt);
}

}  // namespace
}  // namespace zephrine
