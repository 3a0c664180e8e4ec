// SPDX-License-Identifier: MIT
#include "processes/ProcessRanking.h"

#include <gmock/gmock.h>

namespace zephrine {
namespace {

using testing::ElementsAre;

std::vector<int> pids(const std::vector<ProcessUsage>& rows) {
    std::vector<int> all;
    for (const ProcessUsage& row : rows) {
        all.push_back(row.pid);
    }
    return all;
}

const std::vector<ProcessUsage> rows{{.pid = 1, .name = "a", .cpu = {}, .memory = 30},
                                     {.pid = 2, .name = "b", .cpu = 0.0, .memory = 10},
                                     {.pid = 3, .name = "c", .cpu = 7.5, .memory = 20},
                                     {.pid = 4, .name = "d", .cpu = 7.5, .memory = 30}};

TEST(ProcessRanking, ByCPUPutsUnknownSharesBehindThoseOfNothing) {
    EXPECT_THAT(pids(ranked(rows, ProcessOrder::byCPU)), ElementsAre(3, 4, 2, 1));
}

TEST(ProcessRanking, ByMemoryKeepsTheOrderOfRowsThatUseTheSame) {
    EXPECT_THAT(pids(ranked(rows, ProcessOrder::byMemory)), ElementsAre(1, 4, 3, 2));
}

TEST(ProcessRanking, OfNothingIsNothing) {
    EXPECT_TRUE(ranked({}, ProcessOrder::byCPU).empty());
}

}  // namespace
}  // namespace zephrine
