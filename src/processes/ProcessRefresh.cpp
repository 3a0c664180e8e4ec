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
    const auto finish = [owner = weak_from_this(), task = processTask,
                         generation = processGeneration](std::optional<ProcessSnapshot> snapshot) {
        if (const auto controller = owner.lock()) {
            controller->finishProcessRefresh(*task, generation, std::move(snapshot));
        }
    };
    // The capture runs on another thread, and nobody knows for how long: it has a share in the
    // process table and hands everything else back to the main thread untouched.
    application_.backgroundWorker().perform(
        [finish, table = platform_.processTable()] {
            return [finish, snapshot = ProcessSnapshot::capture(*table)]() mutable {
                finish(std::move(snapshot));
            };
        },
        [finish] { finish(std::nullopt); });
}

void AppDelegate::finishProcessRefresh(const ProcessTask& task, std::int64_t generation,
                                       std::optional<ProcessSnapshot> snapshot) {
    if (generation != processGeneration) {
        return;  // `processTask`, if any, is a newer refresh's: leave it alone.
    }
    if (!task.isCancelled && isDashboardVisible()) {
        if (snapshot) {
            const int cores = platform_.hostCounters().activeProcessorCount();
            dashboard->updateProcesses(snapshot->usage(previousProcesses, cores));
        } else {
            dashboard->updateProcesses({});  // the rows that are shown no longer hold
        }
        previousProcesses = std::move(snapshot);
    }
    processTask.reset();
}

}  // namespace zephrine
