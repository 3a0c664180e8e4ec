// SPDX-License-Identifier: MIT
#include "platform/linux/counters/SwapDevices.h"

#include <gtest/gtest.h>

#include "platform/linux/Captured.h"
#include "platform/linux/FakeTree.h"

namespace zephrine {
namespace {

using testing::captured;

TEST(SwapDevices, FindsTheCompressedOnes) {
    const std::string text = captured("swaps/zram-and-disk");
    std::string_view rest = text;
    EXPECT_EQ(takeZramDevice(rest), 0U);
    EXPECT_EQ(takeZramDevice(rest), 12U);
    EXPECT_EQ(takeZramDevice(rest), std::nullopt);
    EXPECT_EQ(takeZramDevice(rest), std::nullopt);
}

TEST(SwapDevices, FindsNoneWhereThereIsNone) {
    for (const char* name : {"swaps/none", "swaps/hostile"}) {
        const std::string text = captured(name);
        std::string_view rest = text;
        EXPECT_EQ(takeZramDevice(rest), std::nullopt) << name;
    }
}

TEST(SwapDevices, CountsWhatACompressedDeviceOccupiesWithItsOverhead) {
    EXPECT_EQ(parseZramMemoryUsed(captured("mm_stat/zram0")), 322961408U);
}

TEST(SwapDevices, KnowsNothingOfADeviceWhoseTextIsBroken) {
    EXPECT_EQ(parseZramMemoryUsed(captured("mm_stat/hostile")), std::nullopt);
    EXPECT_EQ(parseZramMemoryUsed("1 2\n"), std::nullopt);
    EXPECT_EQ(parseZramMemoryUsed("1 2 3"), std::nullopt);
    EXPECT_EQ(parseZramMemoryUsed(""), std::nullopt);
}

}  // namespace
}  // namespace zephrine
