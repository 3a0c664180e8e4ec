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
    /// True when the card is left alone right after three readings of `percent`.
    bool pausesAfterThree(double percent) {
        for (int reading = 0; reading < 3; ++reading) {
            EXPECT_TRUE(power.mayBeRead(10));
            power.noteUtilization(percent, 10);
        }
        return !power.mayBeRead(10);
    }

    FakeTree tree;
    GPUPower power{tree.path("card0")};
};

TEST_F(GPUPowerTest, ReadsOnlyCardsThatAreAwake) {
    EXPECT_TRUE(power.mayBeRead(0));
    for (const char* status : {"suspended", "suspending", "resuming", "error", "", "activeX"}) {
        set("runtime_status", status);
        EXPECT_FALSE(power.mayBeRead(0)) << status;
    }
    set("runtime_status", "active");
    EXPECT_TRUE(power.mayBeRead(0));
}

TEST_F(GPUPowerTest, ReadsCardsWhosePowerTheKernelDoesNotManage) {
    set("runtime_status", "unsupported");
    EXPECT_TRUE(power.mayBeRead(0));
    tree.remove("card0/device/power");
    EXPECT_TRUE(GPUPower(tree.path("card0")).mayBeRead(0));
}

TEST_F(GPUPowerTest, LeavesACardAloneWhoseStatusCannotBeRead) {
    tree.remove("card0/device/power/runtime_status");
    ASSERT_EQ(::mkfifo(tree.path("card0/device/power/runtime_status").c_str(), 0600), 0);
    EXPECT_FALSE(power.mayBeRead(0));
}

TEST_F(GPUPowerTest, LetsAnIdleCardFallAsleep) {
    EXPECT_TRUE(pausesAfterThree(0));
    EXPECT_FALSE(power.mayBeRead(15.9));
    EXPECT_TRUE(power.mayBeRead(16));
    power.noteUtilization(0, 16);
    EXPECT_TRUE(power.mayBeRead(17));
}

TEST_F(GPUPowerTest, KeepsReadingACardThatWorks) {
    EXPECT_FALSE(pausesAfterThree(2));
    power.noteUtilization(0, 10);
    power.noteUtilization(0, 10);
    power.noteUtilization(50, 10);
    power.noteUtilization(0, 10);
    EXPECT_TRUE(power.mayBeRead(10));
}

TEST_F(GPUPowerTest, KeepsReadingAnIdleCardThatNeverSleeps) {
    set("control", "on");
    EXPECT_FALSE(pausesAfterThree(0));
    set("control", "auto");
    set("autosuspend_delay_ms", "-1");
    EXPECT_FALSE(pausesAfterThree(0));
    tree.remove("card0/device/power/control");
    EXPECT_FALSE(pausesAfterThree(0));
}

TEST_F(GPUPowerTest, KeepsReadingAnIdleCardThatDrivesAScreen) {
    setConnector("enabled", "On");
    EXPECT_FALSE(pausesAfterThree(0));
}

TEST_F(GPUPowerTest, LetsACardFallAsleepWhoseScreensAreOff) {
    setConnector("enabled", "Off");
    EXPECT_TRUE(pausesAfterThree(0));
}

TEST_F(GPUPowerTest, LetsACardFallAsleepThatHasNoScreen) {
    setConnector("disabled", "On");
    EXPECT_TRUE(pausesAfterThree(0));
}

}  // namespace
}  // namespace zephrine
