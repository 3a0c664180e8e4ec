// SPDX-License-Identifier: MIT
#include "platform/linux/gpu/AwakeSource.h"

#include <gtest/gtest.h>

#include "platform/linux/FakeTree.h"

namespace zephrine {
namespace {

using testing::FakeTree;

class AwakeSourceTest : public ::testing::Test {
protected:
    /// Gives what the test wants and counts how many of its kind are open, and questions.
    class Source final : public GPUSource {
    public:
        explicit Source(AwakeSourceTest& test) : test_(test) { ++test_.open; }
        ~Source() override { --test_.open; }
        Source(const Source&) = delete;
        Source& operator=(const Source&) = delete;
        std::optional<double> utilization() override {
            ++test_.questions;
            return test_.percent;
        }

    private:
        AwakeSourceTest& test_;
    };

    AwakeSourceTest() {
        setPower("runtime_status", "active");
        setPower("control", "auto");
        setPower("autosuspend_delay_ms", "5000");
    }
    void setPower(const std::string& attribute, const std::string& value) const {
        tree.write("card0/device/power/" + attribute, value + "\n");
    }
    /// How many of the next readings, one a second, asked the card.
    int questionsIn(int seconds) {
        const int before = questions;
        for (int second = 0; second < seconds; ++second, ++now) {
            source.utilization();
        }
        return questions - before;
    }

    FakeTree tree;
    double now = 100;
    std::optional<double> percent = 40;
    int open = 0;
    int questions = 0;
    AwakeSource source{{.path = tree.path("card0"),
                        .device = tree.path("card0/device"),
                        .driver = "amdgpu",
                        .address = ""},
                       [this] { return std::make_unique<Source>(*this); },
                       [this] { return now; }};
};

TEST_F(AwakeSourceTest, DropsTheFirstFigureOfACardThatIsAwake) {
    EXPECT_EQ(source.utilization(), std::nullopt);
    EXPECT_EQ(source.utilization(), 40.0);
}

TEST_F(AwakeSourceTest, NeitherAsksNorHoldsOpenACardThatSleeps) {
    setPower("runtime_status", "suspended");
    EXPECT_EQ(questionsIn(5), 0);
    EXPECT_EQ(open, 0);
    setPower("runtime_status", "active");
    EXPECT_EQ(questionsIn(2), 2);
    EXPECT_EQ(open, 1);
    setPower("runtime_status", "suspending");
    EXPECT_EQ(source.utilization(), std::nullopt);
    EXPECT_EQ(open, 0);
}

TEST_F(AwakeSourceTest, DropsTheFirstFigureAfterEachWake) {
    source.utilization();
    EXPECT_EQ(source.utilization(), 40.0);
    setPower("runtime_status", "suspended");
    EXPECT_EQ(source.utilization(), std::nullopt);
    setPower("runtime_status", "active");
    percent = 100;
    EXPECT_EQ(source.utilization(), std::nullopt);
    percent = 3;
    EXPECT_EQ(source.utilization(), 3.0);
}

TEST_F(AwakeSourceTest, LetsAnIdleCardFallAsleep) {
    percent = 0;
    EXPECT_EQ(questionsIn(4), 4);  // the first is dropped, three are idle
    EXPECT_EQ(questionsIn(5), 0);
    EXPECT_EQ(questionsIn(1), 1);
}

TEST_F(AwakeSourceTest, KeepsAskingACardThatWorks) {
    percent = 2;
    EXPECT_EQ(questionsIn(20), 20);
}

TEST_F(AwakeSourceTest, KeepsAskingAnIdleCardThatNeverSleeps) {
    percent = 0;
    setPower("control", "on");
    EXPECT_EQ(questionsIn(20), 20);
}

TEST_F(AwakeSourceTest, KeepsAskingAnIdleCardThatDrivesAScreen) {
    percent = 0;
    tree.write("card0/card0-eDP-1/enabled", "enabled\n");
    tree.write("card0/card0-eDP-1/dpms", "On\n");
    EXPECT_EQ(questionsIn(20), 20);
}

TEST_F(AwakeSourceTest, TakesAFigureThatIsAbsentForNoSignOfIdleness) {
    percent = std::nullopt;
    EXPECT_EQ(questionsIn(20), 20);
}

}  // namespace
}  // namespace zephrine
