// SPDX-License-Identifier: MIT
#include "platform/linux/counters/LinuxHostCounters.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <limits>

#include "platform/linux/AllocationCount.h"
#include "platform/linux/Captured.h"
#include "platform/linux/FakeTree.h"
#include "platform/linux/OpenWatch.h"
#include "platform/linux/PretendedSleep.h"
#include "sampling/CPUTicks.h"
#include "sampling/MemoryReading.h"

namespace zephrine {
namespace {

using testing::allocationCount;
using testing::captured;
using testing::FakeTree;
using testing::OpenWatch;

class LinuxHostCountersTest : public ::testing::Test {
protected:
    LinuxHostCountersTest() {
        tree.write("proc/stat", captured("stat/laptop-with-offline-processors"));
        tree.write("proc/meminfo", captured("meminfo/zram-laptop"));
        tree.write("proc/pressure/memory", captured("pressure/busy-desktop"));
        tree.write("proc/swaps", captured("swaps/zram-and-disk"));
        tree.write("sys/block/zram0/mm_stat", captured("mm_stat/zram0"));
    }

    LinuxHostCounters make() {
        return LinuxHostCounters(tree.path("proc"), tree.path("sys"), [this] { return now; });
    }

    FakeTree tree;
    double now = 100;
};

TEST_F(LinuxHostCountersTest, GivesTheTicksOfTheProcessorLine) {
    LinuxHostCounters counters = make();
    EXPECT_EQ(counters.host_statistics(),
              (HostCPULoadInfo{120934, 40321 + 1203, 5012345 + 8012, 1502}));
    tree.write("proc/stat", "cpu  120935 1502 40321 5012345 8012 0 1203 0 4001 0\n");
    EXPECT_EQ(counters.host_statistics(),
              (HostCPULoadInfo{120935, 40321 + 1203, 5012345 + 8012, 1502}));
}

TEST_F(LinuxHostCountersTest, NeverLetsACounterStepBack) {
    LinuxHostCounters counters = make();
    const auto before = counters.host_statistics();
    tree.write("proc/stat", "cpu  120934 1502 40321 5012345 8011 0 1203 0 4001 0\n");
    EXPECT_EQ(counters.host_statistics(), before);
}

TEST_F(LinuxHostCountersTest, HasNoTicksWhenTheFileIsGoneOrBroken) {
    LinuxHostCounters counters = make();
    tree.write("proc/stat", captured("stat/hostile-negative"));
    EXPECT_EQ(counters.host_statistics(), std::nullopt);
    tree.write("proc/stat", "");
    EXPECT_EQ(counters.host_statistics(), std::nullopt);
    tree.remove("proc/stat");
    EXPECT_EQ(make().host_statistics(), std::nullopt);
}

TEST_F(LinuxHostCountersTest, CountsTheProcessorsThatAreOnlineNow) {
    LinuxHostCounters counters = make();
    EXPECT_EQ(counters.activeProcessorCount(), 3);
    tree.write("proc/stat", captured("stat/server-256-processors"));
    EXPECT_EQ(counters.activeProcessorCount(), 256);
    tree.write("proc/stat", captured("stat/lxcfs-container"));
    EXPECT_EQ(counters.activeProcessorCount(), 2);
    tree.write("proc/stat", "");
    EXPECT_EQ(counters.activeProcessorCount(), 0);
}

TEST_F(LinuxHostCountersTest, CountsMoreProcessorsThanFitItsFirstBuffer) {
    std::string text = "cpu  1 2 3 4\n";
    for (int index = 0; index < 8192; ++index) {
        text += "cpu" + std::to_string(index) + " 100000 200000 300000 400000 0 0 0 0 0 0\n";
    }
    tree.write("proc/stat", text + "intr 0\n");
    EXPECT_EQ(make().activeProcessorCount(), 8192);
}

TEST_F(LinuxHostCountersTest, KnowsNoCountInTenMegabytesOfProcessors) {
    std::string text;
    while (text.size() < std::size_t{10} << 20U) {
        text += "cpu1 1 2 3 4\n";
    }
    tree.write("proc/stat", text);
    LinuxHostCounters counters = make();
    EXPECT_EQ(counters.activeProcessorCount(), 0);
    EXPECT_EQ(counters.host_statistics(), std::nullopt);
}

TEST_F(LinuxHostCountersTest, GivesUsedAndPhysicalMemory) {
    LinuxHostCounters counters = make();
    const std::uint64_t total = counters.physicalMemory();
    EXPECT_EQ(total, 8000000ULL * 1024);
    const auto page = counters.host_page_size();
    EXPECT_EQ(page, static_cast<std::uint64_t>(::sysconf(_SC_PAGESIZE)));
    const auto statistics = counters.host_statistics64();
    ASSERT_TRUE(statistics);
    EXPECT_EQ(MemoryReading::usedBytes(*statistics, *page, total),
              (8000000ULL - 1900000ULL) * 1024 / *page * *page);
}

TEST_F(LinuxHostCountersTest, CountsCompressedSwapAsCompressorPages) {
    LinuxHostCounters counters = make();
    const auto page = *counters.host_page_size();
    const auto one = counters.host_statistics64();
    ASSERT_TRUE(one);
    EXPECT_EQ(one->compressor_page_count, (120000ULL * 1024 + 322961408ULL) / page);
    tree.write("sys/block/zram12/mm_stat", captured("mm_stat/zram0"));
    EXPECT_EQ(counters.host_statistics64()->compressor_page_count,
              (120000ULL * 1024 + 2 * 322961408ULL) / page);
    tree.write("proc/swaps", captured("swaps/none"));
    EXPECT_EQ(counters.host_statistics64()->compressor_page_count, 120000ULL * 1024 / page);
}

TEST_F(LinuxHostCountersTest, CountsTheFileSystemCacheWhereThereIsOne) {
    tree.write("proc/meminfo", captured("meminfo/zfs-server"));
    tree.write("proc/spl/kstat/zfs/arcstats", captured("arcstats/server"));
    LinuxHostCounters counters = make();
    const auto statistics = counters.host_statistics64();
    ASSERT_TRUE(statistics);
    EXPECT_EQ(statistics->purgeable_count,
              (1200000ULL * 1024 + 66571993088ULL - 4294967296ULL) / *counters.host_page_size());
}

TEST_F(LinuxHostCountersTest, HasNoMemoryFiguresWhenTheFileIsGoneOrBroken) {
    LinuxHostCounters counters = make();
    tree.write("proc/meminfo", captured("meminfo/hostile-empty"));
    EXPECT_FALSE(counters.host_statistics64());
    EXPECT_EQ(counters.physicalMemory(), 0U);
    tree.remove("proc/meminfo");
    LinuxHostCounters others = make();
    EXPECT_FALSE(others.host_statistics64());
    EXPECT_EQ(others.physicalMemory(), 0U);
}

TEST_F(LinuxHostCountersTest, GivesThePressureLevelOfTheStallsBetweenTwoReadings) {
    LinuxHostCounters counters = make();
    EXPECT_EQ(counters.memorystatus_vm_pressure_level(), 1);
    now += 2;
    tree.write("proc/pressure/memory", "some total=48519934\nfull total=20488213\n");
    EXPECT_EQ(counters.memorystatus_vm_pressure_level(), 4);
}

TEST_F(LinuxHostCountersTest, HasALevelUnlessNothingCanBeRead) {
    tree.remove("proc/pressure");
    EXPECT_EQ(make().memorystatus_vm_pressure_level(), 1);
    tree.remove("proc/meminfo");
    EXPECT_EQ(make().memorystatus_vm_pressure_level(), std::nullopt);
    tree.write("proc/pressure/memory", captured("pressure/debian-vm"));
    EXPECT_EQ(make().memorystatus_vm_pressure_level(), 1);
}

TEST_F(LinuxHostCountersTest, ReadsEachFileOnceInARefresh) {
    LinuxHostCounters counters = make();
    OpenWatch watch(tree.path("proc"));
    OpenWatch pressure(tree.path("proc/pressure"));
    for (int refresh = 0; refresh < 3; ++refresh) {
        counters.host_statistics();
        counters.host_page_size();
        counters.host_statistics64();
        counters.memorystatus_vm_pressure_level();
        EXPECT_EQ(watch.takeReads(), (std::multiset<std::string>{"stat", "meminfo", "swaps"}));
        EXPECT_EQ(pressure.takeReads(), std::multiset<std::string>{"memory"});
    }
}

TEST_F(LinuxHostCountersTest, ReadsTheMemoryAnewForASecondPressureLevel) {
    LinuxHostCounters counters = make();
    counters.host_statistics64();
    EXPECT_EQ(counters.memorystatus_vm_pressure_level(), 1);
    tree.write("proc/meminfo", "MemTotal: 1000 kB\nMemAvailable: 10 kB\n");
    EXPECT_EQ(counters.memorystatus_vm_pressure_level(), 4);
}

TEST_F(LinuxHostCountersTest, TakesNothingFromTheHeapOnceItRuns) {
    LinuxHostCounters counters = make();
    std::size_t before = 0;
    for (int refresh = 0; refresh < 10; ++refresh) {
        if (refresh == 1) {
            before = allocationCount();
        }
        now += 1;
        counters.host_statistics();
        counters.host_page_size();
        counters.host_statistics64();
        counters.memorystatus_vm_pressure_level();
        counters.activeProcessorCount();
        counters.systemUptime();
    }
    EXPECT_EQ(allocationCount(), before);
}

TEST_F(LinuxHostCountersTest, GivesTheClockAsUptime) {
    LinuxHostCounters counters = make();
    EXPECT_EQ(counters.systemUptime(), 100);
    now = 101.5;
    EXPECT_EQ(counters.systemUptime(), 101.5);
}

TEST(LinuxHostCounters, DoesNotCountTimeAsleepAsUptime) {
    constexpr int kHour = 3600;
    LinuxHostCounters counters;
    const double before = counters.systemUptime();
    testing::pretendSleep(kHour);
    EXPECT_LT(counters.systemUptime(), before + kHour);
}

TEST(LinuxHostCounters, ReadsThisMachine) {
    LinuxHostCounters counters;
    const auto first = counters.host_statistics();
    ASSERT_TRUE(first);
    EXPECT_GT((*first)[CPU_STATE_IDLE] + (*first)[CPU_STATE_USER], 0U);
    EXPECT_GT(counters.physicalMemory(), std::uint64_t{1} << 24U);
    ASSERT_TRUE(counters.host_statistics64());
    const auto level = counters.memorystatus_vm_pressure_level();
    ASSERT_TRUE(level);
    EXPECT_TRUE(*level == 1 || *level == 2 || *level == 4);
    EXPECT_GT(counters.systemUptime(), 0);
    EXPECT_EQ(counters.activeProcessorCount(), ::sysconf(_SC_NPROCESSORS_ONLN));
}

}  // namespace
}  // namespace zephrine
