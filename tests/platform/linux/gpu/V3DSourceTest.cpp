// SPDX-License-Identifier: MIT
#include "platform/linux/gpu/V3DSource.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include "platform/linux/FakeTree.h"

namespace zephrine {
namespace {

using testing::FakeTree;

class V3DSourceTest : public ::testing::Test {
protected:
    void tell(const std::string& queues) const {
        tree.write("gpu_stats", "queue\ttimestamp\tjobs\truntime\n" + queues);
    }

    FakeTree tree;
    V3DSource source{tree.root()};
};

TEST_F(V3DSourceTest, GivesTheBusiestQueue) {
    tell("bin\t1000\t5\t100\nrender\t1000\t5\t200\ncsd\t1000\t5\t0\n");
    EXPECT_EQ(source.utilization(), std::nullopt);
    tell("bin\t2000\t6\t150\nrender\t2000\t6\t800\ncsd\t2000\t5\t0\n");
    EXPECT_EQ(source.utilization(), 60.0);
    tell("bin\t3000\t6\t150\nrender\t3000\t6\t800\ncsd\t3000\t5\t250\n");
    EXPECT_EQ(source.utilization(), 25.0);
}

TEST_F(V3DSourceTest, LeavesOutTheQueueThatRunsOnTheProcessor) {
    tell("bin\t1000\t5\t100\ncpu\t1000\t5\t0\n");
    source.utilization();
    tell("bin\t2000\t6\t200\ncpu\t2000\t6\t900\n");
    EXPECT_EQ(source.utilization(), 10.0);
}

TEST_F(V3DSourceTest, IsAbsentWhenTheFileMakesNoSense) {
    tell("bin\t1000\t5\t100\n");
    source.utilization();
    for (const char* text :
         {"", "bin\n", "bin\t2000\t6\n", "bin\t2000\t6\tmany\n", "\n\n\n", "bin\t2000\t6\t200"}) {
        tell(text);
        EXPECT_EQ(source.utilization(), std::nullopt) << text;
    }
    tree.remove("gpu_stats");
    EXPECT_EQ(source.utilization(), std::nullopt);
    ASSERT_EQ(::mkfifo(tree.path("gpu_stats").c_str(), 0600), 0);
    EXPECT_EQ(source.utilization(), std::nullopt);
}

TEST_F(V3DSourceTest, IsAbsentWhenAQueueRanLongerThanTheTimeThatPassed) {
    tell("bin\t1000\t5\t100\n");
    source.utilization();
    tell("bin\t2000\t6\t5000\n");
    EXPECT_EQ(source.utilization(), std::nullopt);
}

TEST_F(V3DSourceTest, SurvivesMoreQueuesThanAnyDriverHas) {
    std::string queues;
    for (int queue = 0; queue < 500; ++queue) {
        queues += "q\t1000\t5\t100\n";
    }
    tell(queues);
    EXPECT_EQ(source.utilization(), std::nullopt);
}

}  // namespace
}  // namespace zephrine
