// SPDX-License-Identifier: MIT
#include "platform/linux/gpu/NvidiaSource.h"

#include <gtest/gtest.h>

#include "platform/linux/gpu/FakeCards.h"
#include "platform/linux/gpu/FakeNVML.h"

namespace zephrine {
namespace {

using testing::FakeCards;
using testing::FakeNVML;

class NvidiaSourceTest : public ::testing::Test {
protected:
    static constexpr const char* kCard = "0000:01:00.0";
    static constexpr const char* kOtherCard = "0000:41:00.0";

    NvidiaSourceTest() {
        cards.add(0, "nvidia", kCard);
        nvml.setUtilization(kCard, 40);
    }
    NvidiaSource make(const std::string& library = FakeNVML::library()) {
        return {findGraphicsCards(cards.tree.root()).value(), library, [this] { return now; }};
    }
    /// The last of so many readings, one a second.
    std::optional<double> after(NvidiaSource& source, int readings) {
        std::optional<double> percent;
        for (int reading = 0; reading < readings; ++reading, ++now) {
            percent = source.utilization();
        }
        return percent;
    }
    using Calls = std::vector<std::string>;

    FakeCards cards;
    FakeNVML nvml;
    double now = 100;
};

TEST_F(NvidiaSourceTest, GivesTheLibrarysFigureAndDropsTheFirst) {
    auto source = make();
    EXPECT_EQ(source.utilization(), std::nullopt);
    EXPECT_EQ(source.utilization(), 40.0);
    nvml.setUtilization(kCard, 90);
    EXPECT_EQ(source.utilization(), 90.0);
    EXPECT_EQ(nvml.calls(),
              (Calls{"start", "device", "rates", "device", "rates", "device", "rates"}));
}

TEST_F(NvidiaSourceTest, TouchesNothingOfACardThatSleeps) {
    cards.setStatus(kCard, "suspended");
    auto source = make();
    EXPECT_EQ(after(source, 10), std::nullopt);
    EXPECT_EQ(nvml.calls(), Calls{});
    EXPECT_FALSE(nvml.holdsDevice());
}

TEST_F(NvidiaSourceTest, LetsGoOfTheLibraryOnceACardSleeps) {
    auto source = make();
    EXPECT_EQ(after(source, 2), 40.0);
    EXPECT_TRUE(nvml.holdsDevice());
    cards.setStatus(kCard, "suspending");
    nvml.forgetCalls();
    EXPECT_EQ(after(source, 5), std::nullopt);
    EXPECT_EQ(nvml.calls(), Calls{"stop"});
    EXPECT_FALSE(nvml.holdsDevice());
}

TEST_F(NvidiaSourceTest, LetsGoOfTheLibraryWhileTheCardIsIdle) {
    auto source = make();
    nvml.setUtilization(kCard, 0);
    EXPECT_EQ(after(source, 3), 0.0);
    EXPECT_FALSE(nvml.holdsDevice());
    nvml.forgetCalls();
    EXPECT_EQ(after(source, 19), std::nullopt);
    EXPECT_EQ(nvml.calls(), Calls{});
    nvml.setUtilization(kCard, 80);
    EXPECT_EQ(after(source, 1), std::nullopt);
    EXPECT_EQ(after(source, 1), 80.0);
    EXPECT_TRUE(nvml.holdsDevice());
}

TEST_F(NvidiaSourceTest, LeavesACardAsleepThatFellAsleepWhileItWasLetGo) {
    auto source = make();
    nvml.setUtilization(kCard, 0);
    after(source, 3);
    cards.setStatus(kCard, "suspended");
    nvml.forgetCalls();
    EXPECT_EQ(after(source, 100), std::nullopt);
    EXPECT_EQ(nvml.calls(), Calls{});
}

TEST_F(NvidiaSourceTest, KeepsReadingAnIdleCardThatDrivesAScreen) {
    auto source = make();
    nvml.setUtilization(kCard, 0);
    nvml.set("display", "1");
    EXPECT_EQ(after(source, 30), 0.0);
    nvml.set("display", "0");
    cards.tree.write(FakeCards::device(kCard) + "drm/card0/card0-DP-1/enabled", "enabled\n");
    cards.tree.write(FakeCards::device(kCard) + "drm/card0/card0-DP-1/dpms", "On\n");
    EXPECT_EQ(after(source, 30), 0.0);
}

TEST_F(NvidiaSourceTest, IsAbsentWhenTheLibraryDoesNotTell) {
    auto source = make();
    EXPECT_EQ(after(source, 2), 40.0);
    nvml.setUtilization(kCard, -1);
    EXPECT_EQ(after(source, 1), std::nullopt);
    nvml.setUtilization(kCard, 101);
    EXPECT_EQ(after(source, 1), std::nullopt);
    nvml.clear(kCard);
    EXPECT_EQ(after(source, 1), std::nullopt);
    EXPECT_FALSE(nvml.holdsDevice());  // no reason to keep it
}

TEST_F(NvidiaSourceTest, IsAbsentWithoutALibraryThatStarts) {
    auto none = make("libzephrine-no-such-library.so.1");
    EXPECT_EQ(after(none, 30), std::nullopt);
    auto other = make("libm.so.6");
    EXPECT_EQ(after(other, 30), std::nullopt);
    nvml.set("init", "9");
    auto failing = make();
    EXPECT_EQ(after(failing, 20), std::nullopt);
    EXPECT_EQ(nvml.calls(), Calls{"start"});  // not tried again each second
    nvml.set("init", "0");
    EXPECT_EQ(after(failing, 3), 40.0);
}

TEST_F(NvidiaSourceTest, GivesTheBusiestOfSeveralCards) {
    cards.addDevice("nvidia", kOtherCard);
    nvml.setUtilization(kOtherCard, 70);
    auto source = make();
    EXPECT_EQ(after(source, 2), 70.0);
    nvml.setUtilization(kCard, 75);
    EXPECT_EQ(after(source, 1), 75.0);
    nvml.setUtilization(kOtherCard, -1);
    EXPECT_EQ(after(source, 1), 75.0);
}

TEST_F(NvidiaSourceTest, TouchesNoCardWhileOneOfThemSleeps) {
    cards.addDevice("nvidia", kOtherCard, "suspended");
    auto source = make();
    EXPECT_EQ(after(source, 5), std::nullopt);
    EXPECT_EQ(nvml.calls(), Calls{});
    cards.setStatus(kOtherCard, "active");
    EXPECT_EQ(after(source, 2), 40.0);
}

TEST_F(NvidiaSourceTest, LetsAnIdleCardSleepBesideABusyOne) {
    cards.addDevice("nvidia", kOtherCard);
    nvml.setUtilization(kOtherCard, 0);
    auto source = make();
    EXPECT_EQ(after(source, 3), 40.0);
    EXPECT_FALSE(nvml.holdsDevice());
}

TEST_F(NvidiaSourceTest, StopsTheLibraryWhenItGoes) {
    {
        auto source = make();
        after(source, 2);
        EXPECT_TRUE(nvml.holdsDevice());
    }
    EXPECT_FALSE(nvml.holdsDevice());
    EXPECT_EQ(nvml.calls().back(), "stop");
}

}  // namespace
}  // namespace zephrine
