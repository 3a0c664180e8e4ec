// SPDX-License-Identifier: MIT
#include "platform/macos/MacProcessTable.h"

#include <algorithm>
#include <limits>

#include "platform/macos/HostRecords.h"

#include <libproc.h>
#include <mach/mach_time.h>
#include <unistd.h>

namespace zephrine {

int MacProcessTable::proc_listallpids(std::span<std::int32_t> pids) {
    if (pids.empty()) {
        return ::proc_listallpids(nullptr, 0);
    }
    constexpr std::size_t mostBytes = std::numeric_limits<int>::max();
    const int bytes = static_cast<int>(std::min(pids.size_bytes(), mostBytes));
    // Takes bytes but returns a count of pids, unlike proc_listpids, which returns bytes.
    return ::proc_listallpids(pids.data(), bytes);
}

std::optional<rusage_info_v2> MacProcessTable::proc_pid_rusage(std::int32_t pid) {
    ::rusage_info_v2 record{};
    // The parameter is declared as a pointer to a pointer, but takes the record's address.
    if (::proc_pid_rusage(pid, RUSAGE_INFO_V2, reinterpret_cast<rusage_info_t*>(&record)) != 0) {
        return std::nullopt;
    }
    return resourceUsage(record);
}

int MacProcessTable::proc_name(std::int32_t pid, std::span<char> buffer) {
    return ::proc_name(pid, buffer.data(), static_cast<std::uint32_t>(buffer.size()));
}

std::uint64_t MacProcessTable::mach_absolute_time() {
    return ::mach_absolute_time();
}

std::int32_t MacProcessTable::getpid() {
    return ::getpid();
}

}  // namespace zephrine
