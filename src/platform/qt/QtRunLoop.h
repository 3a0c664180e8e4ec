// SPDX-License-Identifier: MIT
// The run loop over Qt's event loop. All timers share one kernel timer: Qt's own coarse timers may
// fire early, and its precise ones take no tolerance.
#pragma once

#include <QObject>
#include <QSocketNotifier>
#include <functional>
#include <memory>

#include "platform/RunLoop.h"
#include "platform/linux/base/FileDescriptor.h"
#include "platform/linux/time/TimerQueue.h"

namespace zephrine {

class QtRunLoop final : public RunLoop {
public:
    /// `beforeTimers` runs on the main thread before it is seen which timers are due, and may
    /// restart them.
    explicit QtRunLoop(std::function<void()> beforeTimers = {});

    std::unique_ptr<Timer> scheduleTimer(Seconds interval, Seconds tolerance,
                                         std::function<void()> action) override;
    void performOnMain(std::function<void()> work) override;

    /// Lets every timer fire next a whole interval from now. After a sleep most are overdue or all
    /// but due, and would follow at once on what was done because of the wake-up.
    void restartTimers();

private:
    void wake();
    void arm();

    std::function<void()> beforeTimers_;
    TimerQueue queue_;
    FileDescriptor kernelTimer_;
    QSocketNotifier notifier_;
    QObject mainThread_;
};

}  // namespace zephrine
