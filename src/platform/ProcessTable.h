// SPDX-License-Identifier: MIT
// The processes that this user may inspect.
//
// Contract. May be called from any thread, one caller at a time. Nothing throws; a process that
// ends between two calls, or that the user may not inspect, simply has no answer. The system may
// keep a call waiting, even for ever: a background worker is the place for them.
#pragma once

#include <cstdint>
#include <optional>
#include <span>

namespace zephrine {

/// What one process has used since it started.
struct rusage_info_v2 {                   // NOLINT(readability-identifier-naming)
    std::uint64_t ri_user_time = 0;       ///< units of `mach_absolute_time`
    std::uint64_t ri_system_time = 0;     ///< units of `mach_absolute_time`
    std::uint64_t ri_phys_footprint = 0;  ///< bytes of memory that only this process keeps in use
    std::uint64_t ri_proc_start_abstime = 0;  ///< differs between two processes that share a pid
};

class ProcessTable {
public:
    virtual ~ProcessTable() = default;

    /// Fills `pids` from its start and returns how many were written; slots behind them are left
    /// alone. With an empty span, returns how many processes there are. Negative on failure.
    virtual int proc_listallpids(std::span<std::int32_t> pids) = 0;

    virtual std::optional<rusage_info_v2> proc_pid_rusage(std::int32_t pid) = 0;

    /// Writes the name's bytes (as the process chose them: not always UTF-8, without a final zero)
    /// and returns how many; below 1 when the name cannot be read.
    virtual int proc_name(std::int32_t pid, std::span<char> buffer) = 0;

    /// A monotonic clock in the same unit as the CPU times above.
    virtual std::uint64_t mach_absolute_time() = 0;

    /// The pid under which this program itself is listed.
    virtual std::int32_t getpid() = 0;
};

}  // namespace zephrine
