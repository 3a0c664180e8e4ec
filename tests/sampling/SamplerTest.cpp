// SPDX-License-Identifier: MIT
#include "sampling/Sampler.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "fakes/FakeGPURegistry.h"
#include "fakes/FakeHostCounters.h"

namespace zephrine {
namespace {

using testing::ElementsAre;

class SamplerTest : public testing::Test {
protected:
    FakeHostCounters host;
    FakeGPURegistry gpus;
};

TEST_F(SamplerTest, FirstCPUReadingIsAbsentAndTheSecondIsAPercentage) {
    Sampler sampler(host, gpus);
    EXPECT_EQ(sampler.cpu(), std::nullopt);
    host.advance(30, 70);
    EXPECT_EQ(sampler.cpu(), 30.0);
}

TEST_F(SamplerTest, EachCPUReadingMeasuresSinceTheOneBefore) {
    Sampler sampler(host, gpus);
    sampler.cpu();
    host.advance(30, 70);
    sampler.cpu();
    host.advance(1, 1);
    EXPECT_EQ(sampler.cpu(), 50.0);
}

TEST_F(SamplerTest, EveryCounterOfTheHostHasItsMeaning) {
    const std::vector<std::pair<CPUState, double>> shares{
        {CPU_STATE_USER, 100}, {CPU_STATE_SYSTEM, 100}, {CPU_STATE_IDLE, 0}, {CPU_STATE_NICE, 100}};
    Sampler sampler(host, gpus);
    sampler.cpu();
    for (const auto& [state, share] : shares) {
        host.ticks->at(state) += 10;
        EXPECT_EQ(sampler.cpu(), share) << state;
    }
}

TEST_F(SamplerTest, AReadingWithoutElapsedTicksStillMovesTheBaseline) {
    Sampler sampler(host, gpus);
    sampler.cpu();
    EXPECT_EQ(sampler.cpu(), std::nullopt);
    host.advance(1, 3);
    EXPECT_EQ(sampler.cpu(), 25.0);
}

TEST_F(SamplerTest, AFailedCPUReadingDropsTheBaseline) {
    Sampler sampler(host, gpus);
    sampler.cpu();
    const auto before = host.ticks;
    host.ticks = std::nullopt;
    EXPECT_EQ(sampler.cpu(), std::nullopt);
    host.ticks = before;
    host.advance(50, 50);
    EXPECT_EQ(sampler.cpu(), std::nullopt);
    host.advance(50, 50);
    EXPECT_EQ(sampler.cpu(), 50.0);
}

TEST_F(SamplerTest, ResettingTheCPUDropsTheBaseline) {
    Sampler sampler(host, gpus);
    sampler.cpu();
    host.advance(50, 50);
    sampler.resetCPU();
    EXPECT_EQ(sampler.cpu(), std::nullopt);
}

TEST_F(SamplerTest, MemoryIsWhatIsUsedOfThePhysicalMemory) {
    host.setUsed(4ULL << 30U);
    Sampler sampler(host, gpus);
    EXPECT_EQ(sampler.memory(), (MemoryReading{.used = 4ULL << 30U, .total = 16ULL << 30U}));
}

TEST_F(SamplerTest, PhysicalMemoryIsReadOnceAtConstruction) {
    Sampler sampler(host, gpus);
    host.memory = 1;
    EXPECT_EQ(sampler.memory()->total, 16ULL << 30U);
}

TEST_F(SamplerTest, WithoutPhysicalMemoryNothingIsReadAtAll) {
    host.memory = 0;
    Sampler sampler(host, gpus);
    host.calls.clear();
    EXPECT_EQ(sampler.memory(), std::nullopt);
    EXPECT_TRUE(host.calls.all().empty());
}

TEST_F(SamplerTest, MemoryIsAbsentWhenEitherReadingFails) {
    Sampler sampler(host, gpus);
    host.pageSize = std::nullopt;
    EXPECT_EQ(sampler.memory(), std::nullopt);
    EXPECT_FALSE(host.calls.has("host_statistics64"));
    host.pageSize = 4096;
    host.statistics = std::nullopt;
    EXPECT_EQ(sampler.memory(), std::nullopt);
}

TEST_F(SamplerTest, PressureIsUnknownWhenItCannotBeReadOrIsNoLevel) {
    Sampler sampler(host, gpus);
    host.pressureLevel = 4;
    EXPECT_EQ(sampler.pressure(), MemoryPressure::critical);
    for (const std::int32_t level : {3, 5, -1, 0}) {
        host.pressureLevel = level;
        EXPECT_EQ(sampler.pressure(), MemoryPressure::unknown) << level;
    }
    host.pressureLevel = std::nullopt;
    EXPECT_EQ(sampler.pressure(), MemoryPressure::unknown);
}

TEST_F(SamplerTest, TheBusiestGPUIsReported) {
    gpus.addUtilization(30.0);
    gpus.addUtilization(70.0);
    gpus.addUtilization(10.0);
    Sampler sampler(host, gpus);
    EXPECT_EQ(sampler.gpu(), 70.0);
    EXPECT_EQ(gpus.lastKey, "PerformanceStatistics");
}

TEST_F(SamplerTest, OfEquallyBusyGPUsTheFirstIsReported) {
    gpus.addUtilization(0.0);
    gpus.addUtilization(-0.0);
    EXPECT_FALSE(std::signbit(Sampler(host, gpus).gpu().value()));
}

TEST_F(SamplerTest, GPUValuesThatCannotBeTrueContributeNothing) {
    gpus.addUtilization(120.0);
    gpus.addUtilization(100.1);
    gpus.addUtilization(-0.1);
    gpus.addUtilization(std::numeric_limits<double>::infinity());
    gpus.addUtilization(std::nan(""));
    gpus.addUtilization(std::string("50"));
    Sampler sampler(host, gpus);
    EXPECT_EQ(sampler.gpu(), std::nullopt);
    gpus.services.push_back({.statistics = PropertyDictionary{{"Device Utilization %", 0.0}}});
    sampler.discoverGPU();
    EXPECT_EQ(sampler.gpu(), 0.0);
}

TEST_F(SamplerTest, GPUIsAbsentWithoutServicesOrStatistics) {
    EXPECT_EQ(Sampler(host, gpus).gpu(), std::nullopt);
    gpus.services.push_back({.statistics = std::nullopt});
    gpus.services.push_back({.statistics = Property(5.0)});
    gpus.services.push_back({.statistics = PropertyDictionary{{"Other %", 5.0}}});
    EXPECT_EQ(Sampler(host, gpus).gpu(), std::nullopt);
}

TEST_F(SamplerTest, BothEndsOfTheRangeAreGPUReadings) {
    gpus.addUtilization(100.0);
    EXPECT_EQ(Sampler(host, gpus).gpu(), 100.0);
    gpus.services.clear();
    gpus.addUtilization(0.0);
    EXPECT_EQ(Sampler(host, gpus).gpu(), 0.0);
}

TEST_F(SamplerTest, GPUsAreLookedUpAtConstructionAndOnDemandOnly) {
    gpus.addUtilization(30.0);
    Sampler sampler(host, gpus);
    sampler.gpu();
    sampler.gpu();
    EXPECT_EQ(gpus.lookUps, 1);
    sampler.discoverGPU();
    EXPECT_EQ(gpus.lookUps, 2);
}

TEST_F(SamplerTest, EveryGPUHandleIsReleased) {
    gpus.addUtilization(30.0);
    {
        Sampler sampler(host, gpus);
        EXPECT_EQ(gpus.services[0].references, 1);
        sampler.discoverGPU();
        EXPECT_EQ(gpus.services[0].references, 1);
    }
    EXPECT_EQ(gpus.services[0].references, 0);
    EXPECT_TRUE(gpus.calls.inOrder({"IOServiceGetMatchingServices", "IOObjectRelease",
                                    "IOServiceGetMatchingServices", "IOObjectRelease"}));
}

TEST_F(SamplerTest, AFailedDiscoveryLeavesNoGPU) {
    gpus.addUtilization(30.0);
    Sampler sampler(host, gpus);
    gpus.lookUpFails = true;
    sampler.discoverGPU();
    EXPECT_EQ(sampler.gpu(), std::nullopt);
    EXPECT_EQ(gpus.services[0].references, 0);
}

TEST_F(SamplerTest, OneRoundOfReadingsCostsOneCallPerCounterAndService) {
    gpus.addUtilization(30.0);
    gpus.addUtilization(40.0);
    Sampler sampler(host, gpus);
    host.calls.clear();
    sampler.cpu();
    sampler.memory();
    sampler.gpu();
    sampler.pressure();
    EXPECT_THAT(host.calls.all(),
                ElementsAre("host_statistics", "host_page_size", "host_statistics64",
                            "memorystatus_vm_pressure_level"));
    EXPECT_EQ(gpus.propertyReads, 2);
}

}  // namespace
}  // namespace zephrine
