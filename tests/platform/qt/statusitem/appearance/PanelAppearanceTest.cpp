// SPDX-License-Identifier: MIT
// When the panel is looked at, and what is made of its pixels.
#include "platform/qt/statusitem/appearance/PanelAppearance.h"

#include <gtest/gtest.h>

#include <vector>

#include "platform/qt/statusitem/appearance/PanelPixels.h"

namespace zephrine {
namespace {

using std::chrono::milliseconds;

class FakeProbe : public PanelProbe {
public:
    std::optional<Appearance> seen = Appearance::aqua;
    std::optional<pid_t> asked;
    int looks = 0;

    std::optional<Appearance> look(std::optional<pid_t> host) override {
        ++looks;
        asked = host;
        return seen;
    }
};

class AppearanceOfThePanel : public testing::Test {
protected:
    FakeProbe probe;
    PanelAppearance::TimePoint now{};
    PanelAppearance panel{probe, [this] { return now; }};
};

TEST_F(AppearanceOfThePanel, CannotBeToldWithoutOne) {
    EXPECT_EQ(panel.current(), std::nullopt);
    EXPECT_EQ(probe.looks, 0);
}

TEST_F(AppearanceOfThePanel, IsWhatIsSeenOfTheHostsPanel) {
    panel.setHost(HostProcess{42, "lxqt-panel"});
    probe.seen = Appearance::darkAqua;
    EXPECT_EQ(panel.current(), Appearance::darkAqua);
    EXPECT_EQ(probe.asked, 42);
}

TEST_F(AppearanceOfThePanel, IsLookedAtOnceInTwoSeconds) {
    panel.setHost(HostProcess{42, "lxqt-panel"});
    EXPECT_EQ(panel.current(), Appearance::aqua);
    probe.seen = Appearance::darkAqua;
    now += milliseconds(1000);
    EXPECT_EQ(panel.current(), Appearance::aqua);
    now += milliseconds(1000);
    EXPECT_EQ(panel.current(), Appearance::darkAqua);
    EXPECT_EQ(probe.looks, 2);
}

TEST_F(AppearanceOfThePanel, StaysWhileThePanelHidesItself) {
    panel.setHost(HostProcess{42, "lxqt-panel"});
    probe.seen = Appearance::darkAqua;
    EXPECT_EQ(panel.current(), Appearance::darkAqua);
    probe.seen = std::nullopt;
    now += milliseconds(5000);
    EXPECT_EQ(panel.current(), Appearance::darkAqua);
    EXPECT_EQ(probe.looks, 2);
}

TEST_F(AppearanceOfThePanel, IsForgottenWithThePanel) {
    panel.setHost(HostProcess{42, "lxqt-panel"});
    EXPECT_EQ(panel.current(), Appearance::aqua);
    probe.seen = std::nullopt;
    panel.setHost(HostProcess{43, "mate-panel"});
    EXPECT_EQ(panel.current(), std::nullopt);
}

TEST_F(AppearanceOfThePanel, IsKnownToBeDarkOfSomeWithoutLooking) {
    for (const char* command : {"gnome-shell", "waybar", "swaybar"}) {
        panel.setHost(HostProcess{42, command});
        EXPECT_EQ(panel.current(), Appearance::darkAqua) << command;
    }
    EXPECT_EQ(probe.looks, 0);
}

TEST(PanelPixels, TellNothingWhenThereAreNone) {
    EXPECT_EQ(appearanceOfPixels({}), std::nullopt);
}

TEST(PanelPixels, AreDarkWhereWhiteTextStandsOutBetter) {
    const auto appearanceOf = [](std::uint32_t pixel) {
        return appearanceOfPixels(std::vector{pixel});
    };
    EXPECT_EQ(appearanceOf(0x000000), Appearance::darkAqua);
    EXPECT_EQ(appearanceOf(0x353535), Appearance::darkAqua);
    EXPECT_EQ(appearanceOf(0x757575), Appearance::darkAqua);
    EXPECT_EQ(appearanceOf(0x777777), Appearance::aqua);
    EXPECT_EQ(appearanceOf(0xffffff), Appearance::aqua);
    EXPECT_EQ(appearanceOf(0x0000ff), Appearance::darkAqua);
    EXPECT_EQ(appearanceOf(0x00ff00), Appearance::aqua);
}

TEST(PanelPixels, AreJudgedWithoutTheirUppermostByte) {
    EXPECT_EQ(appearanceOfPixels(std::vector<std::uint32_t>{0xff000000}), Appearance::darkAqua);
}

TEST(PanelPixels, AreJudgedByTheirMajority) {
    EXPECT_EQ(appearanceOfPixels(std::vector<std::uint32_t>{0xffffff, 0, 0, 0xffffff, 0}),
              Appearance::darkAqua);
    EXPECT_EQ(appearanceOfPixels(std::vector<std::uint32_t>{0xf0f0f0, 0, 0, 0xffffff, 0xffffff}),
              Appearance::aqua);
}

}  // namespace
}  // namespace zephrine
