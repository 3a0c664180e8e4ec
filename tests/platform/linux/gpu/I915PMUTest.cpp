// SPDX-License-Identifier: MIT
#include "platform/linux/gpu/I915PMU.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <array>
#include <map>

#include "platform/linux/FakeTree.h"

namespace zephrine {
namespace {

using testing::FakeTree;

class I915PMUTest : public ::testing::Test {
protected:
    I915PMUTest() {
        sys.write("bus/event_source/devices/i915/type", "19\n");
        sys.write("bus/event_source/devices/i915/cpumask", "2\n");
        addEvent("rcs0-busy", "config=0x0\n");
        addEvent("vcs0-busy", "config=0x2000\n");
        addEvent("rcs0-busy.unit", "ns\n");
        addEvent("rcs0-wait", "config=0x1\n");
    }
    void addEvent(const std::string& name, const std::string& text) const {
        sys.write("bus/event_source/devices/i915/events/" + name, text);
    }
    std::unique_ptr<I915PMU> open(const std::string& address = "0000:00:02.0") {
        return I915PMU::open(sys.root(), address,
                             [this](std::uint32_t type, std::uint64_t config, int cpu) {
                                 return openCounter(type, config, cpu);
                             });
    }
    /// A pipe stands in for a counter: what the test puts in is read once.
    FileDescriptor openCounter(std::uint32_t type, std::uint64_t config, int cpu) {
        EXPECT_EQ(type, expectedType);
        EXPECT_EQ(cpu, 2);
        std::array<int, 2> ends{-1, -1};
        if (config == forbidden || ::pipe2(ends.data(), O_CLOEXEC | O_NONBLOCK) != 0) {
            return {};
        }
        counters[config] = FileDescriptor(ends[1]);
        return FileDescriptor(ends[0]);
    }
    void count(std::uint64_t config, std::uint64_t busy, std::uint64_t enabled) {
        const std::array<std::uint64_t, 2> words{busy, enabled};
        ASSERT_TRUE(
            counters.at(config).write({reinterpret_cast<const char*>(words.data()), sizeof words}));
    }

    static constexpr std::uint64_t kRender = 0;
    static constexpr std::uint64_t kVideo = 0x2000;

    FakeTree sys;
    std::map<std::uint64_t, FileDescriptor> counters;
    std::uint64_t forbidden = ~0ULL;
    std::uint32_t expectedType = 19;
};

TEST_F(I915PMUTest, GivesTheBusiestEngine) {
    const auto pmu = open();
    ASSERT_TRUE(pmu);
    EXPECT_EQ(counters.size(), 2U);
    count(kRender, 100, 1000);
    count(kVideo, 0, 1000);
    EXPECT_EQ(pmu->utilization(), std::nullopt);
    count(kRender, 200, 2000);
    count(kVideo, 700, 2000);
    EXPECT_EQ(pmu->utilization(), 70.0);
}

TEST_F(I915PMUTest, FindsTheCountersOfACardByItsAddress) {
    sys.write("bus/event_source/devices/i915_0000_03_00.0/type", "27\n");
    sys.write("bus/event_source/devices/i915_0000_03_00.0/cpumask", "2\n");
    sys.write("bus/event_source/devices/i915_0000_03_00.0/events/ccs0-busy", "config=0x4000\n");
    expectedType = 27;
    EXPECT_TRUE(open("0000:03:00.0"));
    EXPECT_TRUE(counters.contains(0x4000));
    EXPECT_FALSE(open("0000:04:00.0"));
}

TEST_F(I915PMUTest, IsNotThereForThoseWhoMayNotSeeSuchCounters) {
    forbidden = kVideo;
    EXPECT_FALSE(open());
}

TEST_F(I915PMUTest, IsNotThereWhenTheKernelOffersNoneOrNonsense) {
    addEvent("bcs0-busy", "gibberish\n");
    EXPECT_FALSE(open());
    sys.remove("bus/event_source/devices/i915/events");
    EXPECT_FALSE(open());
    sys.remove("bus");
    EXPECT_FALSE(open());
}

TEST_F(I915PMUTest, IsAbsentWhileACounterCannotBeRead) {
    const auto pmu = open();
    ASSERT_TRUE(pmu);
    EXPECT_EQ(pmu->utilization(), std::nullopt);
    count(kRender, 100, 1000);
    EXPECT_EQ(pmu->utilization(), std::nullopt);
}

TEST(PerfEvent, IsNoneWhenThereIsNoSuchCounter) {
    EXPECT_FALSE(openPerfEvent(0xffff'ffff, 0, 0));
}

}  // namespace
}  // namespace zephrine
