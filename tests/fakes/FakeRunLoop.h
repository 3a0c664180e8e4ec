// SPDX-License-Identifier: MIT
// Time and background work under a test's control: timers fire when it says so, and jobs run when
// it releases them.
#pragma once

#include <deque>
#include <iterator>
#include <list>
#include <stdexcept>
#include <utility>

#include "fakes/CallLog.h"
#include "platform/RunLoop.h"

namespace zephrine {

class FakeRunLoop : public RunLoop {
public:
    explicit FakeRunLoop(CallLog log = {}) : calls(std::move(log)) {}

    CallLog calls;
    struct Scheduled {
        double interval;   ///< seconds
        double tolerance;  ///< seconds
        std::function<void()> action;
    };
    std::list<Scheduled> timers;  ///< the ones that are alive, oldest first
    std::deque<std::function<void()>> mainQueue;

    std::unique_ptr<Timer> scheduleTimer(Seconds interval, Seconds tolerance,
                                         std::function<void()> action) override {
        calls.note("scheduleTimer");
        timers.push_back({interval.count(), tolerance.count(), std::move(action)});
        return std::make_unique<Handle>(*this, std::prev(timers.end()));
    }
    void performOnMain(std::function<void()> work) override {
        mainQueue.push_back(std::move(work));
    }

    /// Fires the only timer of this interval; throws when there is none.
    void fire(double interval) {
        for (Scheduled& timer : timers) {
            if (timer.interval == interval) {
                const auto action = timer.action;
                return action();
            }
        }
        throw std::logic_error("no such timer");
    }
    /// Runs what is queued for the main thread.
    void drain() {
        while (!mainQueue.empty()) {
            const auto work = std::move(mainQueue.front());
            mainQueue.pop_front();
            work();
        }
    }

private:
    class Handle : public Timer {
    public:
        Handle(FakeRunLoop& loop, std::list<Scheduled>::iterator timer)
            : loop_(loop), timer_(timer) {}
        ~Handle() override {
            loop_.calls.note("invalidate");
            loop_.timers.erase(timer_);
        }
        Handle(const Handle&) = delete;
        Handle& operator=(const Handle&) = delete;

    private:
        FakeRunLoop& loop_;
        std::list<Scheduled>::iterator timer_;
    };
};

class FakeBackgroundWorker : public BackgroundWorker {
public:
    struct Request {
        Job job;
        std::function<void()> givenUp;
    };
    CallLog calls;
    std::deque<Request> jobs;

    explicit FakeBackgroundWorker(FakeRunLoop& loop, CallLog log = {})
        : calls(std::move(log)), loop_(loop) {}

    void perform(Job job, std::function<void()> givenUp) override {
        calls.note("perform");
        jobs.push_back({std::move(job), std::move(givenUp)});
    }

    /// Runs the oldest job that has not run yet, and queues its completion.
    void release() { loop_.performOnMain(take().job()); }
    /// Leaves it stuck, and queues what comes of that.
    void giveUp() { loop_.performOnMain(take().givenUp); }

private:
    Request take() {
        Request request = std::move(jobs.front());
        jobs.pop_front();
        return request;
    }

    FakeRunLoop& loop_;
};

}  // namespace zephrine
