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

class QtBackgroundWorker final : public BackgroundWorker {
public:
    QtBackgroundWorker() = default;
    /// Waits for the job that runs, if any; the others are dropped.
    ~QtBackgroundWorker() override;
    QtBackgroundWorker(const QtBackgroundWorker&) = delete;
    QtBackgroundWorker& operator=(const QtBackgroundWorker&) = delete;

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
