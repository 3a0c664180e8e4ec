// SPDX-License-Identifier: MIT
// Time and threads: repeating timers on the main thread, the hop to the main thread, and the one
// background worker.
#pragma once

#include <functional>
#include <memory>

namespace zephrine {

/// A repeating timer that has been scheduled. Destroying it invalidates it: its action is not
/// called again. The action may destroy the timer that calls it.
class Timer {
public:
    virtual ~Timer() = default;
};

class RunLoop {
public:
    virtual ~RunLoop() = default;

    /// Calls `action` on the main thread every `interval` seconds, whatever the user is doing
    /// (menus, drags), the first time one interval from now. Each firing may come up to
    /// `tolerance` seconds late, so that the system can group wake-ups; lateness does not add up.
    virtual std::unique_ptr<Timer> scheduleTimer(double interval, double tolerance,
                                                 std::function<void()> action) = 0;

    /// Runs `work` on the main thread, after what is queued there already. Any thread may call.
    virtual void performOnMain(std::function<void()> work) = 0;
};

class BackgroundWorker {
public:
    virtual ~BackgroundWorker() = default;

    /// Runs `job` off the main thread at low priority, after the jobs handed over before it. What
    /// is still queued when the worker is destroyed does not run.
    virtual void perform(std::function<void()> job) = 0;
};

}  // namespace zephrine
