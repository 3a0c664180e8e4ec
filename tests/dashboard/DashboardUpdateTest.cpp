// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "dashboard/Dashboard.h"
#include "fakes/FakePlatform.h"
#include "platform/qt/DesktopVocabulary.h"

namespace zephrine {
namespace {

class DashboardUpdateTest : public testing::Test {
protected:
    FakePlatform platform;
    Dashboard dashboard{platform.application, platform.texts};

    FakeLabel& label(const std::unique_ptr<Label>& field) { return fake<FakeLabel>(*field); }
    std::string spoken() { return fake<FakeCanvas>(dashboard.history.canvas()).accessibilityValue; }
};

constexpr MemoryReading memory{.used = 12240656794, .total = 16ULL << 30U};  // 11.4 GB, 71 %

TEST_F(DashboardUpdateTest, WritesEveryReading) {
    History history;
    history.append({.time = 1, .cpu = 42, .ram = 71, .gpu = 5});
    dashboard.update(42, memory, 5, MemoryPressure::warning, history, 2);
    EXPECT_EQ(label(dashboard.cpu).text, "42%");
    EXPECT_EQ(label(dashboard.ram).text, "71%");
    EXPECT_EQ(label(dashboard.gpu).text, "5%");
    EXPECT_EQ(label(dashboard.ramDetail).text, "11.4 / 16 GB");
    EXPECT_EQ(label(dashboard.gpuDetail).text, "Driver-reported usage");
    EXPECT_EQ(label(dashboard.pressure).text, "●  Memory pressure: Elevated");
    EXPECT_EQ(label(dashboard.pressure).color, Color::systemOrangeColor);
    EXPECT_EQ(label(dashboard.cadence).text, "Updates every 2s · Everything stays on your Mac");
    EXPECT_EQ(dashboard.history.samples(), history.samples);
    EXPECT_EQ(spoken(), "CPU 42%, RAM 71%, GPU 5%. 1 recent samples.");
}

TEST_F(DashboardUpdateTest, WritesFromTopToBottomAndSpeaksOnceTheFiguresStand) {
    dashboard.update(42, memory, 5, MemoryPressure::warning, {}, 2);
    EXPECT_TRUE(platform.calls.inOrder(
        {"setStringValue 42%", "setStringValue 71%", "setStringValue 5%",
         "setStringValue Driver-reported usage", "setStringValue 11.4 / 16 GB",
         "setStringValue ●  Memory pressure: Elevated", "setNeedsDisplay", "setAccessibilityValue",
         "setStringValue " + label(dashboard.cadence).text}));
}

TEST_F(DashboardUpdateTest, NamesWhatIsAbsent) {
    dashboard.update(42, memory, 5, MemoryPressure::normal, {}, 1);
    dashboard.update({}, {}, {}, MemoryPressure::unknown, {}, 1);
    EXPECT_EQ(label(dashboard.cpu).text, "—");
    EXPECT_EQ(label(dashboard.ram).text, "—");
    EXPECT_EQ(label(dashboard.gpu).text, "—");
    EXPECT_EQ(label(dashboard.gpuDetail).text, "Not available on this Mac");
    EXPECT_EQ(label(dashboard.ramDetail).text, "Unavailable");
    EXPECT_EQ(label(dashboard.pressure).text, "●  Memory pressure: Unavailable");
    EXPECT_EQ(label(dashboard.pressure).color, Color::secondaryLabelColor);
    EXPECT_EQ(spoken(), "CPU —, RAM —, GPU —. 0 recent samples.");
}

TEST_F(DashboardUpdateTest, ShowsMemoryWithoutAGPU) {
    dashboard.update({}, memory, {}, MemoryPressure::normal, {}, 1);
    EXPECT_EQ(label(dashboard.ram).text, "71%");
    EXPECT_EQ(label(dashboard.ramDetail).text, "11.4 / 16 GB");
    EXPECT_EQ(label(dashboard.gpuDetail).text, "Not available on this Mac");
}

TEST_F(DashboardUpdateTest, RoundsToWholePercentWithoutPadding) {
    dashboard.update(99.6, {}, 0.4, MemoryPressure::normal, {}, 1);
    EXPECT_EQ(label(dashboard.cpu).text, "100%");
    EXPECT_EQ(label(dashboard.gpu).text, "0%");
}

TEST_F(DashboardUpdateTest, WritesTheIntervalInTheUsersNumberFormat) {
    dashboard.update({}, {}, {}, MemoryPressure::normal, {}, 0.5);
    EXPECT_EQ(label(dashboard.cadence).text, "Updates every 0,5s · Everything stays on your Mac");
}

TEST_F(DashboardUpdateTest, CallsTheMachineWhatItsSystemDoes) {
    platform.application.words = desktopVocabulary;
    dashboard.update({}, {}, {}, MemoryPressure::normal, {}, 2);
    EXPECT_EQ(label(dashboard.gpuDetail).text, "Not available here");
    EXPECT_EQ(label(dashboard.cadence).text,
              "Updates every 2s · Everything stays on your computer");
}

TEST_F(DashboardUpdateTest, LeavesTheProcessListAlone) {
    dashboard.loadView();
    dashboard.update(42, memory, 5, MemoryPressure::normal, {}, 1);
    EXPECT_EQ(dashboard.processNames[0]->stringValue(), "Measuring…");
}

}  // namespace
}  // namespace zephrine
