// SPDX-License-Identifier: MIT
// The arithmetic of repeating timers, apart from any clock: which are due, and when the process
// has to wake up next so that timers whose tolerances overlap share one wake-up.
#pragma once

#include <chrono>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

#include "platform/RunLoop.h"

namespace zephrine {

class TimerQueue {
public:
    /// Nanoseconds on one monotonic clock.
    using Time = std::chrono::nanoseconds;

    struct Entry {
        Time interval;
        Time tolerance;
        Time due;
        std::function<void()> action;
        bool cancelled = false;
        bool running = false;
    };
    using Due = std::vector<std::shared_ptr<Entry>>;

    /// A timer that is due first at `now + interval`; it stays in the queue until it is destroyed.
    std::unique_ptr<Timer> add(Time now, Time interval, Time tolerance,
                               std::function<void()> action);

    /// The latest moment at which no timer is later than its tolerance; absent without timers.
    [[nodiscard]] std::optional<Time> nextWake() const;

    /// The timers that are due, each already set to its next time on its own grid: periods that
    /// were missed altogether are left out, and lateness does not move the grid.
    [[nodiscard]] Due takeDue(Time now);

    /// Lets every timer be due a whole interval from now, whatever it was due before.
    void restart(Time now);

    /// Calls the actions of those that are not destroyed meanwhile, none inside itself.
    static void run(const Due& due);

private:
    std::vector<std::weak_ptr<Entry>> entries_;
};

}  // namespace zephrine
