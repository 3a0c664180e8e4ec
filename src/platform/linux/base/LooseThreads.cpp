// SPDX-License-Identifier: MIT
// See the header. A thread that ends in time is joined, so that nothing of it is left at the end of
// the program.
#include "platform/linux/base/LooseThreads.h"

#include <pthread.h>

#include <ctime>
#include <system_error>
#include <utility>

#include "platform/linux/base/LowPriority.h"

namespace zephrine {

LooseThread::LooseThread(std::future<void> ended, std::thread thread)
    : ended_(std::move(ended)), thread_(std::move(thread)) {}

LooseThread::~LooseThread() {
    constexpr std::chrono::milliseconds kPatience{20};
    if (ended_.wait_for(kPatience) == std::future_status::ready) {
        thread_.join();
    } else {
        thread_.detach();
    }
}

std::optional<std::chrono::nanoseconds> LooseThread::cpuTime() {
    clockid_t clock{};
    timespec time{};
    if (::pthread_getcpuclockid(thread_.native_handle(), &clock) != 0 ||
        ::clock_gettime(clock, &time) != 0) {
        return std::nullopt;
    }
    return std::chrono::seconds(time.tv_sec) + std::chrono::nanoseconds(time.tv_nsec);
}

std::unique_ptr<LooseThread> LooseThreads::start(std::function<void()> work) {
    if (presence_.use_count() > most_) {
        return nullptr;
    }
    std::promise<void> end;
    auto ended = end.get_future();
    try {
        std::thread thread([name = name_, work = std::move(work), presence = presence_,
                            end = std::move(end)]() mutable {
            becomeLowPriorityThread(name);
            work();
            work = nullptr;
            presence.reset();
            end.set_value();
        });
        return std::unique_ptr<LooseThread>(new LooseThread(std::move(ended), std::move(thread)));
    } catch (const std::system_error&) {
        return nullptr;
    }
}

}  // namespace zephrine
