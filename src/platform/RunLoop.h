// SPDX-License-Identifier: MIT
// Time and threads: repeating timers on the main thread, the hop to the main thread, and the one
// background worker.
#pragma once

#include <chrono>
#include <functional>
#include <memory>

namespace zephrine {

using Seconds = std::chrono::duration<double>;

/// A repeating timer that has been scheduled. Destroying it invalidates it: its action is not
/// called again. The action may destroy the timer that calls it.
class Timer {
public:
    virtual ~Timer() = default;
};

class RunLoop {
public:
    virtual ~RunLoop() = default;

    /// Calls `action` on the main thread every `interval`, whatever the user is doing
    /// (menus, drags), the first time one interval from now. Each firing may come up to
    /// `tolerance` late, so that the system can group wake-ups; lateness does not add up.
    virtual std::unique_ptr<Timer> scheduleTimer(Seconds interval, Seconds tolerance,
                                                 std::function<void()> action) = 0;

    /// Runs `work` on the main thread, after what is queued there already. Any thread may call.
    virtual void performOnMain(std::function<void()> work) = 0;
};

class BackgroundWorker {
public:
    virtual ~BackgroundWorker() = default;

    /// What a job leaves to be done on the main thread; empty when that is nothing.
    using Completion = std::function<void()>;
    using Job = std::function<Completion()>;

    /// Runs `job` off the main thread at low priority, after the jobs handed over before it, and
    /// then its completion on the main thread. A job that gets stuck, or for which the system
    /// grants no thread, is given up: `givenUp` runs on the main thread in the completion's stead,
    /// and the next job has its turn. As one that is stuck may still go on some day, beside other
    /// jobs and even without the worker, a job uses nothing but what it owns or shares. Nothing
    /// that is still queued when the worker is destroyed runs. Main thread only; neither function
    /// runs at once.
    virtual void perform(Job job, std::function<void()> givenUp) = 0;
};

}  // namespace zephrine
