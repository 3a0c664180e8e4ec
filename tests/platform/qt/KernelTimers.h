// SPDX-License-Identifier: MIT
// The timers that this process has asked of the kernel, as /proc/self/fdinfo shows them
// (proc_pid_fdinfo(5)).
#pragma once

#include <sys/timerfd.h>

#include <cstdint>
#include <filesystem>
#include <fstream>
#include <map>
#include <string>

namespace zephrine::testing {

struct KernelTimer {
    int clock = -1;
    int flags = 0;  ///< of its last timerfd_settime(2)
    bool isArmed = false;
    std::int64_t secondsLeft = 0;  ///< whole ones
};

/// By their file descriptors.
inline std::map<int, KernelTimer> kernelTimers() {
    std::map<int, KernelTimer> timers;
    for (const auto& entry : std::filesystem::directory_iterator("/proc/self/fd")) {
        std::error_code error;
        if (std::filesystem::read_symlink(entry.path(), error) != "anon_inode:[timerfd]") {
            continue;
        }
        const std::string number = entry.path().filename().string();
        std::ifstream info("/proc/self/fdinfo/" + number);
        KernelTimer& timer = timers[std::stoi(number)];
        for (std::string line; std::getline(info, line);) {
            if (line.starts_with("clockid: ")) {
                timer.clock = std::stoi(line.substr(9));
            } else if (line.starts_with("settime flags: ")) {
                timer.flags = std::stoi(line.substr(15), nullptr, 8);
            } else if (line.starts_with("it_value: (")) {
                timer.secondsLeft = std::stoll(line.substr(11));
                timer.isArmed = line != "it_value: (0, 0)";
            }
        }
    }
    return timers;
}

/// The descriptor of the one timer that came since `before`; -1 when it is not just one.
inline int newKernelTimer(const std::map<int, KernelTimer>& before) {
    int found = -1;
    for (const auto& [descriptor, timer] : kernelTimers()) {
        if (!before.contains(descriptor)) {
            if (found >= 0) {
                return -1;
            }
            found = descriptor;
        }
    }
    return found;
}

/// Makes the timer expire now.
inline void expire(int descriptor) {
    itimerspec soon{};
    soon.it_value.tv_nsec = 1;
    timerfd_settime(descriptor, 0, &soon, nullptr);
}

}  // namespace zephrine::testing
