// SPDX-License-Identifier: MIT
// Threads for work that may never come back: a call into the kernel can wait for a driver, a file
// system or another process that does not answer, and then only the end of the program ends it.
#pragma once

#include <chrono>
#include <functional>
#include <future>
#include <memory>
#include <optional>
#include <thread>

namespace zephrine {

class LooseThread {
public:
    /// Lets go of a thread whose work does not end soon.
    ~LooseThread();
    LooseThread(const LooseThread&) = delete;
    LooseThread& operator=(const LooseThread&) = delete;

    /// How long it has run on a processor; absent when it has ended. Stands still while it waits.
    [[nodiscard]] std::optional<std::chrono::nanoseconds> cpuTime();

private:
    friend class LooseThreads;
    LooseThread(std::future<void> ended, std::thread thread);

    std::future<void> ended_;
    std::thread thread_;
};

/// Starts them and keeps count: one that is stuck is lost for good, and a program that runs for
/// months must not collect a thousand of them.
class LooseThreads {
public:
    /// At most `most` threads at a time, with those that were let go. `name` has at most 15 bytes.
    LooseThreads(const char* name, long most) : name_(name), most_(most) {}

    /// Runs `work` at low priority. It may outlive whoever starts it, so all that it uses must be
    /// its own or shared with it. Null when too many run or the system grants none.
    std::unique_ptr<LooseThread> start(std::function<void()> work);

private:
    const char* name_;
    long most_;
    std::shared_ptr<const int> presence_ = std::make_shared<const int>(0);
};

}  // namespace zephrine
