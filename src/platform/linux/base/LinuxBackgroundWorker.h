// SPDX-License-Identifier: MIT
// One background thread of low priority that runs its jobs one after another, until one of them is
// stuck: that one keeps the thread, and the next job gets a new one.
#pragma once

#include <chrono>
#include <deque>
#include <functional>
#include <memory>
#include <optional>

#include "platform/RunLoop.h"
#include "platform/linux/base/LooseThreads.h"

namespace zephrine {

class LinuxBackgroundWorker final : public BackgroundWorker {
public:
    /// `loop` outlives the worker. A job is stuck when its thread has not run at all for `patience`
    /// seconds; one that merely has to wait for a processor on a busy machine is not.
    explicit LinuxBackgroundWorker(RunLoop& loop, Seconds patience = Seconds(3));
    /// Waits a moment for the job that runs, if any, and then lets go of it; the others are
    /// dropped.
    ~LinuxBackgroundWorker() override;
    LinuxBackgroundWorker(const LinuxBackgroundWorker&) = delete;
    LinuxBackgroundWorker& operator=(const LinuxBackgroundWorker&) = delete;

    void perform(Job job, std::function<void()> givenUp) override;

private:
    struct Request {
        Job job;
        std::function<void()> givenUp;
    };
    struct Desk;
    /// What the thread does. `worker` is there for as long as the desk's loop.
    static void serve(const std::shared_ptr<Desk>& desk, LinuxBackgroundWorker* worker);

    void startNext();
    void start(Request request);
    [[nodiscard]] bool ensureThread();
    void letGoOfThread();
    void watch();
    void finish(const std::function<void()>& completion);

    RunLoop& loop_;
    Seconds patience_;
    LooseThreads threads_;
    std::deque<Request> waiting_;
    std::shared_ptr<Desk> desk_;           ///< where the thread takes its jobs from
    std::unique_ptr<LooseThread> thread_;  ///< started by the first job
    std::unique_ptr<Timer> watch_;         ///< over the job that runs; null when none does
    std::optional<std::chrono::nanoseconds> cpuTime_;  ///< of the thread when it was looked at last
    std::function<void()> givenUp_;                    ///< of the job that runs
};

}  // namespace zephrine
