// SPDX-License-Identifier: MIT
#include "platform/linux/counters/Pressure.h"

#include <gtest/gtest.h>

#include "platform/linux/Captured.h"
#include "platform/linux/FakeTree.h"

namespace zephrine {
namespace {

std::optional<StallTimes> read(const std::string& name) {
    return parsePressure(testing::captured("pressure/" + name));
}

void expectStalls(const std::string& name, std::uint64_t some, std::uint64_t full) {
    const auto stalls = read(name);
    ASSERT_TRUE(stalls) << name;
    EXPECT_EQ(stalls->some, some) << name;
    EXPECT_EQ(stalls->full, full) << name;
}

TEST(Pressure, ReadsTheTotals) {
    expectStalls("debian-vm", 0, 0);
    expectStalls("busy-desktop", 48219934, 20188213);
    expectStalls("hostile-reordered", 9, 7);
    expectStalls("hostile-duplicated", 1, 3);
}

TEST(Pressure, IsAbsentForTextThatNoKernelWrites) {
    for (const char* name : {"hostile-empty", "hostile-truncated", "hostile-some-only",
                             "hostile-negative", "hostile-beyond-64-bits"}) {
        EXPECT_FALSE(read(name)) << name;
    }
    EXPECT_FALSE(parsePressure("some avg10=0.00\nfull avg10=0.00\n"));
    EXPECT_FALSE(parsePressure(std::string(std::size_t{10} << 20U, ' ')));
}

}  // namespace
}  // namespace zephrine
