// SPDX-License-Identifier: MIT
#include "platform/linux/gpu/GPUPower.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include "platform/linux/FakeTree.h"

namespace zephrine {
namespace {

using testing::FakeTree;

class GPUPowerTest : public ::testing::Test {
protected:
    GPUPowerTest() {
        set("runtime_status", "active");
        set("control", "auto");
        set("autosuspend_delay_ms", "5000");
    }

    void set(const std::string& attribute, const std::string& value) const {
        tree.write("card0/device/power/" + attribute, value + "\n");
    }
    void setConnector(const std::string& enabled, const std::string& dpms) const {
        tree.write("card0/card0-eDP-1/enabled", enabled + "\n");
        tree.write("card0/card0-eDP-1/dpms", dpms + "\n");
    }

    FakeTree tree;
    GraphicsCard card{.path = tree.path("card0"),
                      .device = tree.path("card0/device"),
                      .driver = "amdgpu",
                      .address = ""};
    GPUPower power{card};
};

TEST_F(GPUPowerTest, KnowsWhichCardsAreAwake) {
    EXPECT_TRUE(power.isAwake());
    for (const char* status : {"suspended", "suspending", "resuming", "error", "", "activeX"}) {
        set("runtime_status", status);
        EXPECT_FALSE(power.isAwake()) << status;
    }
    set("runtime_status", "active");
    EXPECT_TRUE(power.isAwake());
}

TEST_F(GPUPowerTest, TakesCardsForAwakeWhosePowerTheKernelDoesNotManage) {
    set("runtime_status", "unsupported");
    EXPECT_TRUE(power.isAwake());
    tree.remove("card0/device/power");
    EXPECT_TRUE(GPUPower(card).isAwake());
}

TEST_F(GPUPowerTest, TakesACardForAsleepWhoseStatusCannotBeRead) {
    tree.remove("card0/device/power/runtime_status");
    ASSERT_EQ(::mkfifo(tree.path("card0/device/power/runtime_status").c_str(), 0600), 0);
    EXPECT_FALSE(power.isAwake());
}

TEST_F(GPUPowerTest, TellsHowLongACardTakesToFallAsleep) {
    EXPECT_EQ(power.secondsToSleep(), 5.0);
    set("autosuspend_delay_ms", "50");
    EXPECT_EQ(power.secondsToSleep(), 0.05);
}

TEST_F(GPUPowerTest, ExpectsACardToSleepAtOnceWhoseDriverHasNoDelay) {
    tree.remove("card0/device/power/autosuspend_delay_ms");
    EXPECT_EQ(power.secondsToSleep(), 0.0);
}

TEST_F(GPUPowerTest, KnowsThatSomeCardsNeverSleepByThemselves) {
    set("autosuspend_delay_ms", "-1");
    EXPECT_EQ(power.secondsToSleep(), std::nullopt);
    set("autosuspend_delay_ms", "5000");
    set("control", "on");
    EXPECT_EQ(power.secondsToSleep(), std::nullopt);
    tree.remove("card0/device/power/control");
    EXPECT_EQ(power.secondsToSleep(), std::nullopt);
}

TEST_F(GPUPowerTest, KnowsWhetherTheCardDrivesAScreen) {
    EXPECT_FALSE(power.drivesDisplay());
    setConnector("enabled", "On");
    EXPECT_TRUE(power.drivesDisplay());
    setConnector("enabled", "Off");
    EXPECT_FALSE(power.drivesDisplay());
    setConnector("disabled", "On");
    EXPECT_FALSE(power.drivesDisplay());
}

TEST(IdleCount, IsReachedByThreeIdleReadingsInARow) {
    IdleCount idle;
    EXPECT_FALSE(idle.reaches(0));
    EXPECT_FALSE(idle.reaches(1));
    EXPECT_TRUE(idle.reaches(0));
    EXPECT_FALSE(idle.reaches(0));
    EXPECT_FALSE(idle.reaches(0));
    EXPECT_FALSE(idle.reaches(2));
    EXPECT_FALSE(idle.reaches(0));
    EXPECT_FALSE(idle.reaches(0));
    EXPECT_TRUE(idle.reaches(0));
}

}  // namespace
}  // namespace zephrine
