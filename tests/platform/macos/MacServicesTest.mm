// SPDX-License-Identifier: MIT
// The services, on the machine that runs the tests.
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstring>
#include <numeric>
#include <thread>
#include <vector>

#include "platform/macos/MacFormatting.h"
#include "platform/macos/MacGPURegistry.h"
#include "platform/macos/MacHostCounters.h"
#include "platform/macos/MacLoginItem.h"
#include "platform/macos/MacPreferenceStore.h"
#include "platform/macos/MacProcessTable.h"
#include "platform/macos/MacString.h"

#import <Foundation/Foundation.h>

namespace zephrine {
namespace {

TEST(MacHostCounters, CountTicksOfWhichNoneStepsBack) {
    MacHostCounters counters;
    const auto before = counters.host_statistics();
    std::this_thread::sleep_for(std::chrono::milliseconds(200));
    const auto after = counters.host_statistics();
    ASSERT_TRUE(before && after);
    std::uint64_t elapsed = 0;
    for (std::size_t state = 0; state < before->size(); ++state) {
        const std::uint32_t step = after->at(state) - before->at(state);  // wraps as they do
        EXPECT_LT(step, 1U << 20U);
        elapsed += step;
    }
    EXPECT_GT(elapsed, 0U);
}

TEST(MacHostCounters, CountNoMorePagesThanTheMachineHas) {
    MacHostCounters counters;
    const auto page = counters.host_page_size();
    const auto pages = counters.host_statistics64();
    ASSERT_TRUE(page && pages);
    EXPECT_TRUE(*page == 4096 || *page == 16384) << *page;
    const std::uint64_t used =
        std::uint64_t{pages->active_count} + pages->inactive_count + pages->wire_count;
    EXPECT_GT(pages->wire_count, 0U);
    EXPECT_LE(used * *page, counters.physicalMemory());
}

TEST(MacHostCounters, KnowTheLevelOfMemoryPressure) {
    const auto level = MacHostCounters().memorystatus_vm_pressure_level();
    ASSERT_TRUE(level);
    EXPECT_TRUE(*level == 1 || *level == 2 || *level == 4) << *level;
}

TEST(MacProcessTable, ListsThisProcessWithItsNameAndTime) {
    MacProcessTable table;
    const int count = table.proc_listallpids({});
    ASSERT_GT(count, 0);
    std::vector<std::int32_t> pids(static_cast<std::size_t>(count) + 128, 0);
    const int written = table.proc_listallpids(pids);
    ASSERT_GT(written, 0);
    ASSERT_LE(static_cast<std::size_t>(written), pids.size());
    EXPECT_NE(std::find(pids.begin(), pids.begin() + written, table.getpid()),
              pids.begin() + written);

    const auto usage = table.proc_pid_rusage(table.getpid());
    ASSERT_TRUE(usage);
    EXPECT_GT(usage->ri_user_time + usage->ri_system_time, 0U);
    EXPECT_GT(usage->ri_phys_footprint, 1U << 16U);
    EXPECT_LT(usage->ri_proc_start_abstime, table.mach_absolute_time());
    std::array<char, 1024> name{};
    EXPECT_GT(table.proc_name(table.getpid(), name), 0);
}

TEST(MacProcessTable, CountsProcessTimeInTheUnitOfItsClock) {
    MacProcessTable table;
    const auto before = table.proc_pid_rusage(table.getpid());
    const std::uint64_t start = table.mach_absolute_time();
    while (table.mach_absolute_time() - start < 24'000'000 / 2) {
    }
    const auto after = table.proc_pid_rusage(table.getpid());
    const std::uint64_t elapsed = table.mach_absolute_time() - start;
    ASSERT_TRUE(before && after);
    const std::uint64_t used =
        after->ri_user_time + after->ri_system_time - before->ri_user_time - before->ri_system_time;
    // Busy all the while: nanoseconds would be 42 times as many on an Apple chip. The factor leaves
    // room for the process's other threads.
    EXPECT_LT(used, elapsed * 4);
    EXPECT_GT(used, 0U);
}

TEST(MacProcessTable, HasNoAnswerForAPidThatDoesNotExist) {
    EXPECT_EQ(MacProcessTable().proc_pid_rusage(0x7FFFFFFF), std::nullopt);
}

TEST(MacGPURegistry, GivesStatisticsOfEveryServiceThatItFindsOrNone) {
    MacGPURegistry registry;
    const auto services = registry.IOServiceGetMatchingServices("IOAccelerator");
    ASSERT_TRUE(services);
    for (const GPUService service : *services) {
        const Property* statistics =
            registry.IORegistryEntryCreateCFProperty(service, "PerformanceStatistics");
        if (statistics != nullptr) {
            EXPECT_TRUE(std::holds_alternative<PropertyDictionary>(*statistics));
        }
        EXPECT_EQ(registry.IORegistryEntryCreateCFProperty(service, "no such property"), nullptr);
        registry.IOObjectRelease(service);
    }
}

struct MacPreferences : testing::Test {
    ~MacPreferences() override {
        [NSUserDefaults.standardUserDefaults removeObjectForKey:nsString(key)];
    }
    [[nodiscard]] std::string storedType() const {
        NSNumber* number = [NSUserDefaults.standardUserDefaults objectForKey:nsString(key)];
        return number.objCType;
    }

    std::string key = "testOfTheStore";
    MacPreferenceStore store;
};

TEST_F(MacPreferences, KeepTheFormInWhichANumberWasStored) {
    store.setDouble(8.0, key);
    EXPECT_EQ(storedType(), "d");
    EXPECT_EQ(store.doubleForKey(key), 8.0);
    store.setInteger(9, key);
    EXPECT_EQ(storedType(), "q");
    EXPECT_EQ(store.doubleForKey(key), 9.0);
    store.setBool(true, key);
    EXPECT_TRUE(store.boolForKey(key));
}

TEST_F(MacPreferences, ReadAMissingKeyAsZeroAndFalse) {
    EXPECT_EQ(store.doubleForKey(key), 0);
    EXPECT_FALSE(store.boolForKey(key));
}

TEST(MacFormatting, WritesMemoryInTheSystemsOwnStyle) {
    const MacFormatting formatting;
    EXPECT_EQ(formatting.stringFromByteCount(0), "Zero KB");
    EXPECT_EQ(formatting.stringFromByteCount(1 << 20), "1 MB");
}

TEST(MacFormatting, DropsTrailingZeros) {
    const MacFormatting formatting;
    EXPECT_EQ(formatting.localizedNumber(2), "2");
    const std::string half = formatting.localizedNumber(0.5);
    EXPECT_TRUE(half == "0.5" || half == "0,5") << half;
}

TEST(MacLoginItem, HasOneOfTheFourStates) {
    const auto status = static_cast<int>(MacLoginItem().status());
    EXPECT_GE(status, 0);
    EXPECT_LE(status, 3);
}

TEST(MacString, MakesInvalidBytesSafeAndKeepsEverythingElse) {
    EXPECT_EQ(utf8String(nsString("Fish & Chips \xE2\x80\x94")), "Fish & Chips \xE2\x80\x94");
    EXPECT_EQ(utf8String(nsString("bad \xff end")), "bad \xEF\xBF\xBD end");
    EXPECT_EQ(utf8String(nsString(std::string("a\0b", 3))), std::string("a\0b", 3));
    EXPECT_EQ(utf8String(nil), "");
}

}  // namespace
}  // namespace zephrine
