// SPDX-License-Identifier: MIT
// The worker's thread.
#include "platform/linux/base/LinuxBackgroundWorker.h"

#include <utility>

#include "platform/linux/base/LowPriority.h"

namespace zephrine {

LinuxBackgroundWorker::~LinuxBackgroundWorker() {
    {
        const std::lock_guard lock(mutex_);
        stopping_ = true;
        jobs_.clear();
    }
    changed_.notify_all();
    if (thread_.joinable()) {
        thread_.join();
    }
}

void LinuxBackgroundWorker::perform(std::function<void()> job) {
    {
        const std::lock_guard lock(mutex_);
        jobs_.push_back(std::move(job));
        if (!thread_.joinable()) {
            thread_ = std::thread([this] { runJobs(); });
        }
    }
    changed_.notify_one();
}

void LinuxBackgroundWorker::runJobs() {
    becomeLowPriorityThread("zephrine-work");
    std::unique_lock lock(mutex_);
    while (!stopping_) {
        if (jobs_.empty()) {
            changed_.wait(lock);
            continue;
        }
        {
            const auto job = std::exchange(jobs_.front(), nullptr);
            jobs_.pop_front();
            lock.unlock();
            job();
        }
        lock.lock();
    }
}

}  // namespace zephrine
