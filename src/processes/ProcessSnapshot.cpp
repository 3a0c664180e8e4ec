// SPDX-License-Identifier: MIT
#include "processes/ProcessSnapshot.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <span>
#include <string_view>

#include "platform/Trap.h"
#include "text/UTF8.h"

namespace zephrine {

namespace {

// Room for the processes that start between counting and listing.
constexpr std::size_t slack = 128;
// The list's size in bytes has to fit a signed 32-bit number.
constexpr std::size_t maximumCapacity = std::size_t{1} << 29U;

std::vector<std::int32_t> listPids(ProcessTable& table) {
    const int count = std::max(table.proc_listallpids({}), 0);
    const std::size_t capacity = static_cast<std::size_t>(count) + slack;
    trapUnless(capacity < maximumCapacity);
    std::vector<std::int32_t> pids(capacity, 0);
    const int written = std::max(table.proc_listallpids(pids), 0);
    pids.resize(std::min(static_cast<std::size_t>(written), capacity));
    return pids;
}

std::string processName(ProcessTable& table, std::int32_t pid) {
    std::array<char, 1024> buffer{};
    const int length = table.proc_name(pid, buffer);
    if (length < 1) {
        return "Process " + std::to_string(pid);
    }
    const auto size = std::min(static_cast<std::size_t>(length), buffer.size());
    return repairedUTF8(std::string_view(buffer.data(), size));
}

std::optional<double> cpuShare(const ProcessReading& current,
                               const std::optional<ProcessSnapshot>& since, int cores) {
    if (!since || cores < 1) {
        return std::nullopt;
    }
    const auto entry = since->processes.find(current.pid);
    if (entry == since->processes.end()) {
        return std::nullopt;
    }
    const ProcessReading& old = entry->second;
    if (old.startTime != current.startTime || current.cpuTime < old.cpuTime ||
        current.clock <= old.clock) {
        return std::nullopt;
    }
    const auto used = static_cast<double>(current.cpuTime - old.cpuTime);
    const auto elapsed = static_cast<double>(current.clock - old.clock);
    return std::min(used / elapsed / cores * 100.0, 100.0);
}

}  // namespace

ProcessSnapshot ProcessSnapshot::capture(ProcessTable& table) {
    ProcessSnapshot snapshot;
    for (const std::int32_t pid : listPids(table)) {
        if (pid < 1) {
            continue;
        }
        const auto usage = table.proc_pid_rusage(pid);
        if (!usage) {
            continue;
        }
        const std::uint64_t clock = table.mach_absolute_time();
        snapshot.processes.insert_or_assign(
            pid, ProcessReading{.pid = pid,
                                .name = processName(table, pid),
                                .startTime = usage->ri_proc_start_abstime,
                                .cpuTime = usage->ri_user_time + usage->ri_system_time,
                                .clock = clock,
                                .memory = usage->ri_phys_footprint});
    }
    return snapshot;
}

std::vector<ProcessUsage> ProcessSnapshot::usage(const std::optional<ProcessSnapshot>& since,
                                                 int cores) const {
    std::vector<ProcessUsage> rows;
    rows.reserve(processes.size());
    for (const auto& [pid, reading] : processes) {
        rows.push_back({.pid = pid,
                        .name = reading.name,
                        .cpu = cpuShare(reading, since, cores),
                        .memory = reading.memory});
    }
    return rows;
}

}  // namespace zephrine
