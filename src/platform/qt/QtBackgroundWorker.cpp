// SPDX-License-Identifier: MIT
// The worker's thread: SCHED_BATCH and a nice value, so that it never delays what the user does.
#include "platform/qt/QtBackgroundWorker.h"

#include <pthread.h>
#include <sched.h>
#include <sys/resource.h>

#include <utility>

namespace zephrine {

namespace {

/// Both are wishes: where the system refuses, the jobs run at normal priority.
void lowerOwnPriority() {
    constexpr int niceValue = 10;
    const sched_param parameters{};
    pthread_setschedparam(pthread_self(), SCHED_BATCH, &parameters);
    // On Linux the nice value belongs to the thread; 0 stands for the calling one (setpriority(2)).
    setpriority(PRIO_PROCESS, 0, niceValue);
    pthread_setname_np(pthread_self(), "zephrine-work");
}

}  // namespace

QtBackgroundWorker::~QtBackgroundWorker() {
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

void QtBackgroundWorker::perform(std::function<void()> job) {
    {
        const std::lock_guard lock(mutex_);
        jobs_.push_back(std::move(job));
        if (!thread_.joinable()) {
            thread_ = std::thread([this] { runJobs(); });
        }
    }
    changed_.notify_one();
}

void QtBackgroundWorker::runJobs() {
    lowerOwnPriority();
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
