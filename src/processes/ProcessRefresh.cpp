// SPDX-License-Identifier: MIT
#include "processes/ProcessRefresh.h"

#include <limits>
#include <utility>

#include "platform/Trap.h"

namespace zephrine {

namespace {
constexpr Seconds processInterval{2};
}

ProcessRefresh::ProcessRefresh(RunLoop& runLoop, BackgroundWorker& worker, Callbacks callbacks)
    : runLoop_(runLoop), worker_(worker), callbacks_(std::move(callbacks)) {}

void ProcessRefresh::startProcessUpdates() {
    previousProcesses.reset();
    advanceProcessGeneration();
    refreshProcesses();
    processTimer.reset();
    processTimer = runLoop_.scheduleTimer(processInterval, {}, [this] { refreshProcesses(); });
}

void ProcessRefresh::refreshProcesses() {
    if (!callbacks_.isDashboardVisible() || processTask) {
        return;
    }
    processTask = std::make_shared<ProcessTask>();
    const auto finished = [owner = weak_from_this(), task = processTask,
                           generation =
                               processGeneration](std::optional<ProcessSnapshot> snapshot) {
        if (const auto refresh = owner.lock()) {
            refresh->finish(*task, generation, std::move(snapshot));
        }
    };
    // The capture runs on another thread, and nobody knows for how long: it has a share in the
    // process table and hands everything else back to the main thread untouched.
    worker_.perform(
        [finished, table = callbacks_.processTable()] {
            return [finished, snapshot = ProcessSnapshot::capture(*table)]() mutable {
                finished(std::move(snapshot));
            };
        },
        [finished] { finished(std::nullopt); });
}

void ProcessRefresh::stopProcessUpdates() {
    processTimer.reset();
    advanceProcessGeneration();
    if (processTask) {
        processTask->isCancelled = true;
        processTask.reset();
    }
    previousProcesses.reset();
}

void ProcessRefresh::finish(const ProcessTask& task, std::int64_t generation,
                            std::optional<ProcessSnapshot> snapshot) {
    if (generation != processGeneration) {
        return;  // `processTask`, if any, is a newer refresh's: leave it alone.
    }
    if (!task.isCancelled && callbacks_.isDashboardVisible()) {
        // Without a capture, the rows that are shown no longer hold.
        callbacks_.updateProcesses(
            snapshot ? snapshot->usage(previousProcesses, callbacks_.activeProcessorCount())
                     : std::vector<ProcessUsage>());
        previousProcesses = std::move(snapshot);
    }
    processTask.reset();
}

void ProcessRefresh::advanceProcessGeneration() {
    trapUnless(processGeneration < std::numeric_limits<std::int64_t>::max());
    ++processGeneration;
}

}  // namespace zephrine
