// SPDX-License-Identifier: MIT
// /proc/PID/comm and field 4 of /proc/PID/stat: proc_pid_comm(5), proc_pid_stat(5).
#include "platform/qt/statusitem/ProcessFacts.h"

#include <array>
#include <limits>

#include "platform/linux/base/CounterFile.h"
#include "platform/linux/base/TextScan.h"

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
    return parentInStat(CounterFile(pathOf(pid, "stat")).read(buffer).value_or(""));
}

std::optional<pid_t> parentInStat(std::string_view stat) {
    const std::size_t end = stat.rfind(')');
    if (end == std::string_view::npos) {
        return std::nullopt;
    }
    std::string_view rest = stat.substr(end + 1);
    takeWord(rest);  // the state
    const auto parent = parseUnsigned(takeWord(rest));
    if (!parent || *parent == 0 || *parent > std::numeric_limits<pid_t>::max()) {
        return std::nullopt;
    }
    return static_cast<pid_t>(*parent);
}

}  // namespace zephrine
