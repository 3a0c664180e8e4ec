// SPDX-License-Identifier: MIT
// The main thread hands out one job at a time and hears of its end, so all of the worker's own
// state is the main thread's. What both threads use lives in one shared object, so that a thread
// that was let go still finds it.
#include "platform/linux/base/LinuxBackgroundWorker.h"

#include <condition_variable>
#include <mutex>
#include <utility>

namespace zephrine {

namespace {

/// A file that does not answer is asked anew with each capture, and each time costs a thread.
constexpr long kMostThreads = 4;

}  // namespace

struct LinuxBackgroundWorker::Desk {
    explicit Desk(RunLoop& runLoop) : loop(&runLoop) {}

    std::mutex mutex;
    std::condition_variable changed;
    Job job;        ///< the next one; empty until there is one
    RunLoop* loop;  ///< null once nobody waits for the thread any more; only then it may be gone
};

LinuxBackgroundWorker::LinuxBackgroundWorker(RunLoop& loop, Seconds patience)
    : loop_(loop), patience_(patience), threads_("zephrine-work", kMostThreads) {}

LinuxBackgroundWorker::~LinuxBackgroundWorker() {
    letGoOfThread();
}

void LinuxBackgroundWorker::perform(Job job, std::function<void()> givenUp) {
    waiting_.push_back({std::move(job), std::move(givenUp)});
    startNext();
}

void LinuxBackgroundWorker::startNext() {
    while (!watch_ && !waiting_.empty()) {
        Request request = std::move(waiting_.front());
        waiting_.pop_front();
        if (ensureThread()) {
            start(std::move(request));
        } else {
            loop_.performOnMain(std::move(request.givenUp));
        }
    }
}

void LinuxBackgroundWorker::start(Request request) {
    givenUp_ = std::move(request.givenUp);
    cpuTime_ = thread_->cpuTime();
    watch_ = loop_.scheduleTimer(patience_, patience_, [this] { watch(); });
    const std::lock_guard lock(desk_->mutex);
    desk_->job = std::move(request.job);
    desk_->changed.notify_one();
}

bool LinuxBackgroundWorker::ensureThread() {
    if (thread_) {
        return true;
    }
    desk_ = std::make_shared<Desk>(loop_);
    thread_ = threads_.start([worker = this, desk = desk_] { serve(desk, worker); });
    return thread_ != nullptr;
}

void LinuxBackgroundWorker::serve(const std::shared_ptr<Desk>& desk,
                                  LinuxBackgroundWorker* worker) {
    std::unique_lock lock(desk->mutex);
    for (;;) {
        desk->changed.wait(lock, [&desk] { return desk->job || desk->loop == nullptr; });
        if (desk->loop == nullptr) {
            return;
        }
        Job job = std::exchange(desk->job, nullptr);
        lock.unlock();
        auto completion = job();
        job = nullptr;  // what it held is free before anybody can know that it ended
        lock.lock();
        if (desk->loop != nullptr) {
            desk->loop->performOnMain([desk, worker, completion = std::move(completion)] {
                if (desk->loop != nullptr) {  // only the main thread changes it
                    worker->finish(completion);
                }
            });
        }
    }
}

void LinuxBackgroundWorker::letGoOfThread() {
    if (thread_) {
        const std::lock_guard lock(desk_->mutex);
        desk_->loop = nullptr;
        desk_->changed.notify_one();
    }
    thread_.reset();
}

void LinuxBackgroundWorker::watch() {
    const auto now = thread_->cpuTime();
    if (std::exchange(cpuTime_, now) == now) {
        letGoOfThread();
        finish(std::exchange(givenUp_, nullptr));
    }
}

void LinuxBackgroundWorker::finish(const std::function<void()>& completion) {
    watch_.reset();
    startNext();
    if (completion) {
        completion();
    }
}

}  // namespace zephrine
