// SPDX-License-Identifier: MIT
// /proc/PID/comm (proc_pid_comm(5)) and /proc/PID/stat.
#include "platform/linux/processes/ProcessFacts.h"

#include <array>
#include <limits>
#include <string_view>

#include "platform/linux/base/CounterFile.h"
#include "platform/linux/processes/ProcPidStat.h"

namespace zephrine {

namespace {

std::string pathOf(pid_t pid, const char* file) {
    return "/proc/" + std::to_string(pid) + "/" + file;
}

}  // namespace

std::string commandOf(pid_t pid) {
    std::array<char, 64> buffer{};
    std::string_view text = CounterFile(pathOf(pid, "comm")).read(buffer).value_or("");
    return std::string(text.substr(0, text.find('\n')));
}

std::optional<pid_t> parentOf(pid_t pid) {
    std::array<char, 512> buffer{};
    const auto stat = parseProcPidStat(CounterFile(pathOf(pid, "stat")).read(buffer).value_or(""));
    if (!stat || stat->parent == 0 || stat->parent > std::numeric_limits<pid_t>::max()) {
        return std::nullopt;
    }
    return static_cast<pid_t>(stat->parent);
}

}  // namespace zephrine
