// SPDX-License-Identifier: MIT
// One background thread of low priority that runs its jobs one after another.
#pragma once

#include <condition_variable>
#include <deque>
#include <functional>
#include <mutex>
#include <thread>

#include "platform/RunLoop.h"

namespace zephrine {

class LinuxBackgroundWorker final : public BackgroundWorker {
public:
    LinuxBackgroundWorker() = default;
    /// Waits for the job that runs, if any; the others are dropped.
    ~LinuxBackgroundWorker() override;
    LinuxBackgroundWorker(const LinuxBackgroundWorker&) = delete;
    LinuxBackgroundWorker& operator=(const LinuxBackgroundWorker&) = delete;

    void perform(std::function<void()> job) override;

private:
    void runJobs();

    std::mutex mutex_;
    std::condition_variable changed_;
    std::deque<std::function<void()>> jobs_;
    bool stopping_ = false;
    std::thread thread_;  // started by the first job
};

}  // namespace zephrine
