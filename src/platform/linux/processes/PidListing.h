// SPDX-License-Identifier: MIT
// Which pids there are: the listing of /proc, and a cheaper way that most captures take. The kernel
// hands out pids in ascending order and tells the newest one, so that between two captures only the
// few numbers handed out since need a look; only now and then all of /proc is listed.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string_view>

namespace zephrine {

/// Field 5 of /proc/loadavg (proc_loadavg(5)): the newest pid, threads counted as well.
std::optional<std::int32_t> newestPid(std::string_view loadavg);

/// The pid that an entry of /proc is called after; absent for the other entries.
std::optional<std::int32_t> pidFromName(std::string_view name);

/// Calls `found` for each pid in the opened folder `proc`; false when it cannot be listed.
bool listPids(int proc, const std::function<void(std::int32_t)>& found);

/// What one capture does to learn about new processes.
struct ListingPlan {
    bool listAll = false;       ///< list /proc; otherwise probe the pids above `after` to `last`
    bool distrustKept = false;  ///< a kept pid may have been given to another process meanwhile
    std::int32_t after = 0;
    std::int32_t last = 0;
    bool operator==(const ListingPlan&) const = default;
};

class ListingGate {
public:
    /// To be called once a capture with the newest pid, absent when the kernel does not tell.
    ListingPlan next(std::optional<std::int32_t> newest);

private:
    unsigned captures_ = 0;
    std::optional<std::int32_t> newest_;    ///< at the last capture
    std::optional<std::int32_t> previous_;  ///< at the one before
};

}  // namespace zephrine
