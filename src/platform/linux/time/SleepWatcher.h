// SPDX-License-Identifier: MIT
// Tells that the machine has slept: the clock that counts sleep (CLOCK_BOOTTIME) has then run
// ahead of the one that does not (CLOCK_MONOTONIC). Needs no service to tell us.
#pragma once

#include <chrono>
#include <functional>
#include <vector>

namespace zephrine {

class SleepWatcher {
public:
    using Time = std::chrono::nanoseconds;
    struct Clocks {
        std::function<Time()> boottime;
        std::function<Time()> monotonic;
    };

    SleepWatcher();
    explicit SleepWatcher(Clocks clocks);

    /// `handler` is called by the first check after each sleep of more than half a second.
    void observe(std::function<void()> handler);
    void check();
    /// For somebody who knows of a wake-up by other means than these clocks: the handlers are
    /// called, unless a check has told them of this sleep already.
    void hearOfWakeUp();

private:
    void report();
    [[nodiscard]] Time timeAsleep() const;

    Clocks clocks_;
    Time known_;
    bool reported_ = false;  ///< by the clocks, since somebody was last heard
    std::vector<std::function<void()>> handlers_;
};

}  // namespace zephrine
