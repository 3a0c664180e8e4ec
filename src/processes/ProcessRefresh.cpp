// SPDX-License-Identifier: MIT
// The process list's own cycle: a capture in the background every two seconds while the dashboard
// is on screen, one at a time. A generation number tells results of an earlier showing from those
// of this one, so that nothing stale is ever displayed or becomes the baseline.
#include <utility>

#include "app/AppDelegate.h"

namespace zephrine {

namespace {
constexpr double processInterval = 2.0;  // seconds
}

void AppDelegate::startProcessUpdates() {
    previousProcesses.reset();
    advanceProcessGeneration();
    refreshProcesses();
    processTimer.reset();
    processTimer =
        application_.runLoop().scheduleTimer(processInterval, 0, [this] { refreshProcesses(); });
}

void AppDelegate::refreshProcesses() {
    if (!isDashboardVisible() || processTask) {
        return;
    }
    processTask = std::make_shared<ProcessTask>();
    // The job runs on another thread: it touches the process table and the run loop, which outlive
    // it, and hands everything else back to the main thread untouched.
    application_.backgroundWorker().perform(
        [owner = weak_from_this(), task = processTask, generation = processGeneration,
         &table = platform_.processTable(), &runLoop = application_.runLoop()] {
            runLoop.performOnMain(
                [owner, task, generation, snapshot = ProcessSnapshot::capture(table)]() mutable {
                    if (const auto controller = owner.lock()) {
                        controller->finishProcessRefresh(*task, generation, std::move(snapshot));
                    }
                });
        });
}

void AppDelegate::finishProcessRefresh(const ProcessTask& task, std::int64_t generation,
                                       ProcessSnapshot snapshot) {
    if (generation != processGeneration) {
        return;  // `processTask`, if any, is a newer refresh's: leave it alone.
    }
    if (!task.isCancelled && isDashboardVisible()) {
        const int cores = platform_.hostCounters().activeProcessorCount();
        dashboard->updateProcesses(snapshot.usage(previousProcesses, cores));
        previousProcesses = std::move(snapshot);
    }
    processTask.reset();
}

}  // namespace zephrine
