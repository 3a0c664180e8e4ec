// SPDX-License-Identifier: MIT
#include "platform/linux/counters/ArcStats.h"

#include <gtest/gtest.h>

#include "platform/linux/Captured.h"
#include "platform/linux/FakeTree.h"

namespace zephrine {
namespace {

using testing::captured;

TEST(ArcStats, CountsWhatTheCacheHoldsBeyondItsMinimum) {
    EXPECT_EQ(parseReclaimableArc(captured("arcstats/server")), 66571993088U - 4294967296U);
    EXPECT_EQ(parseReclaimableArc("c_min 4 10\nsize 4 7\n"), 0U);
}

TEST(ArcStats, IsAbsentUnlessBothFiguresAreUnsignedNumbers) {
    EXPECT_EQ(parseReclaimableArc(captured("arcstats/hostile")), std::nullopt);
    EXPECT_EQ(parseReclaimableArc("c_min 4 10\n"), std::nullopt);
    EXPECT_EQ(parseReclaimableArc("size 4 10\nc_min 3 1\n"), std::nullopt);
    EXPECT_EQ(parseReclaimableArc(""), std::nullopt);
}

}  // namespace
}  // namespace zephrine
