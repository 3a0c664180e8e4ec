// SPDX-License-Identifier: MIT
// The process list's own cycle: a capture in the background every two seconds while the dashboard
// is on screen, one at a time. A generation number tells results of an earlier showing from those
// of this one, so that nothing stale is ever displayed or becomes the baseline.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

#include "platform/ProcessTable.h"
#include "platform/RunLoop.h"
#include "processes/ProcessSnapshot.h"

namespace zephrine {

/// A refresh of the process list that is under way.
struct ProcessTask {
    bool isCancelled = false;
};

/// Main thread only, but for the captures themselves. Held by std::shared_ptr, so that a capture
/// that comes back late can tell whether it still exists. The state is public: it is what tests
/// read.
class ProcessRefresh final : public std::enable_shared_from_this<ProcessRefresh> {
public:
    struct Callbacks {
        std::function<bool()> isDashboardVisible;
        /// Asked for each capture, which shares it for as long as it takes.
        std::function<std::shared_ptr<ProcessTable>()> processTable;
        std::function<int()> activeProcessorCount;
        /// Takes the rows of one capture; none when it was given up.
        std::function<void(std::vector<ProcessUsage>)> updateProcesses;
    };

    /// `runLoop` and `worker` outlive it.
    ProcessRefresh(RunLoop& runLoop, BackgroundWorker& worker, Callbacks callbacks);

    /// Begins a showing of the dashboard: without a baseline, and with a capture at once.
    void startProcessUpdates();
    /// Captures, unless the dashboard is hidden or a capture is under way.
    void refreshProcesses();
    void stopProcessUpdates();

    std::unique_ptr<Timer> processTimer;  ///< present while process updates run
    std::shared_ptr<ProcessTask> processTask;
    std::optional<ProcessSnapshot> previousProcesses;  ///< baseline of the next process list
    std::int64_t processGeneration = 0;  ///< moves on whenever process updates start or stop

private:
    /// Without a snapshot: the capture was given up.
    void finish(const ProcessTask& task, std::int64_t generation,
                std::optional<ProcessSnapshot> snapshot);
    void advanceProcessGeneration();

    RunLoop& runLoop_;
    BackgroundWorker& worker_;
    Callbacks callbacks_;
};

}  // namespace zephrine
