// SPDX-License-Identifier: MIT
// The kernel's records as a Mac declares them, filled by hand. Away from a Mac the declarations of
// tests/macos-declarations stand in for the system's.
#include "platform/macos/HostRecords.h"

#include <gtest/gtest.h>
#include <libproc.h>
#include <mach/mach.h>

#include <limits>

namespace zephrine {

namespace {

// As their declarations say; older systems write only the beginning of the second.
constexpr std::size_t cpuWords = 4;
constexpr std::size_t wordsUpToExternalPages = 35;

TEST(HostRecords, TakesTicksInTheOrderOfTheStates) {
    host_cpu_load_info record{};
    record.cpu_ticks[0] = 11;
    record.cpu_ticks[1] = 22;
    record.cpu_ticks[2] = 33;
    record.cpu_ticks[3] = 44;
    EXPECT_EQ(cpuLoadInfo(record, cpuWords), (HostCPULoadInfo{11, 22, 33, 44}));
}

TEST(HostRecords, KeepsTicksThatAreAboutToWrap) {
    host_cpu_load_info record{};
    record.cpu_ticks[2] = std::numeric_limits<std::uint32_t>::max();
    EXPECT_EQ(cpuLoadInfo(record, cpuWords)->at(2), 4294967295U);
}

TEST(HostRecords, TakesNoTicksFromAHalfFilledRecord) {
    EXPECT_EQ(cpuLoadInfo(host_cpu_load_info{}, cpuWords - 1), std::nullopt);
    EXPECT_EQ(cpuLoadInfo(host_cpu_load_info{}, 0), std::nullopt);
}

::vm_statistics64 filledStatistics() {
    ::vm_statistics64 record{};
    record.free_count = 1;
    record.active_count = 2;
    record.inactive_count = 3;
    record.wire_count = 4;
    record.purgeable_count = 5;
    record.compressor_page_count = 6;
    record.external_page_count = 7;
    record.internal_page_count = 8;
    return record;
}

TEST(HostRecords, TakesThePageCountsThatMakeUpUsedMemory) {
    const auto counts = pageCounts(filledStatistics(), HOST_VM_INFO64_COUNT);
    ASSERT_TRUE(counts);
    EXPECT_EQ(counts->active_count, 2U);
    EXPECT_EQ(counts->inactive_count, 3U);
    EXPECT_EQ(counts->wire_count, 4U);
    EXPECT_EQ(counts->purgeable_count, 5U);
    EXPECT_EQ(counts->compressor_page_count, 6U);
    EXPECT_EQ(counts->external_page_count, 7U);
}

TEST(HostRecords, NeedsTheRecordUpToTheLastCountThatItTakes) {
    EXPECT_TRUE(pageCounts(filledStatistics(), wordsUpToExternalPages));
    EXPECT_FALSE(pageCounts(filledStatistics(), wordsUpToExternalPages - 1));
    EXPECT_FALSE(pageCounts(filledStatistics(), 0));
}

TEST(HostRecords, LeavesProcessTimesInTheUnitOfTheClock) {
    ::rusage_info_v2 record{};
    record.ri_user_time = 24'000'000;  // one second of a clock with 24 MHz
    record.ri_system_time = 12'000'000;
    record.ri_phys_footprint = 1ULL << 40U;
    record.ri_resident_size = 1;
    record.ri_proc_start_abstime = std::numeric_limits<std::uint64_t>::max();
    record.ri_proc_exit_abstime = 2;
    const rusage_info_v2 usage = resourceUsage(record);
    EXPECT_EQ(usage.ri_user_time, 24'000'000U);
    EXPECT_EQ(usage.ri_system_time, 12'000'000U);
    EXPECT_EQ(usage.ri_phys_footprint, 1099511627776U);
    EXPECT_EQ(usage.ri_proc_start_abstime, 18446744073709551615U);
}

}  // namespace

}  // namespace zephrine
