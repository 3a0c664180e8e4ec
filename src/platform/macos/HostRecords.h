// SPDX-License-Identifier: MIT
// From the kernel's records to the values of the seam, field by field. Written for any record with
// Mach's field names, so that it runs wherever a test can declare one.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>

#include "platform/HostCounters.h"
#include "platform/ProcessTable.h"

namespace zephrine {

/// `filledWords` is the count that came back from the kernel: 32-bit words that it wrote.
template <typename Record>
std::optional<HostCPULoadInfo> cpuLoadInfo(const Record& record, std::size_t filledWords) {
    HostCPULoadInfo ticks{};
    if (filledWords < ticks.size()) {
        return std::nullopt;
    }
    for (std::size_t state = 0; state < ticks.size(); ++state) {
        ticks.at(state) = record.cpu_ticks[state];
    }
    return ticks;
}

/// The record has grown with the system's versions, and a kernel older than the headers writes
/// only its beginning: absent when it stopped before the last of these counts.
template <typename Record>
std::optional<vm_statistics64> pageCounts(const Record& record, std::size_t filledWords) {
    constexpr std::size_t neededBytes =
        offsetof(Record, external_page_count) + sizeof(record.external_page_count);
    if (filledWords * sizeof(std::uint32_t) < neededBytes) {
        return std::nullopt;
    }
    return vm_statistics64{.active_count = record.active_count,
                           .inactive_count = record.inactive_count,
                           .wire_count = record.wire_count,
                           .compressor_page_count = record.compressor_page_count,
                           .purgeable_count = record.purgeable_count,
                           .external_page_count = record.external_page_count};
}

/// The times stay in the unit of the absolute clock, in which the kernel reports them: a share is
/// a quotient of the two, and converting both to nanoseconds would only lose digits.
template <typename Record>
rusage_info_v2 resourceUsage(const Record& record) {
    return {.ri_user_time = record.ri_user_time,
            .ri_system_time = record.ri_system_time,
            .ri_phys_footprint = record.ri_phys_footprint,
            .ri_proc_start_abstime = record.ri_proc_start_abstime};
}

}  // namespace zephrine
