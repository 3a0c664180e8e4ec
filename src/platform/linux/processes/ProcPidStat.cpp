// SPDX-License-Identifier: MIT
// "PID (comm) state ppid …": the name stands between the first '(' and the last ')'. A process may
// call itself ") R 1 (" and even put newlines there, but behind its name the kernel writes only
// numbers, so the last ')' is always the kernel's own.
#include "platform/linux/processes/ProcPidStat.h"

#include <cstddef>

#include "platform/linux/base/TextScan.h"

namespace zephrine {

std::optional<ProcPidStat> parseProcPidStat(std::string_view text) {
    const std::size_t open = text.find('(');
    const std::size_t close = text.rfind(')');
    if (open == std::string_view::npos || close == std::string_view::npos || close < open) {
        return std::nullopt;
    }
    std::string_view fields = text.substr(close + 1);
    const std::string_view state = takeWord(fields);
    const auto parent = parseUnsigned(takeWord(fields));
    constexpr int kBetweenParentAndStart = 22 - 4 - 1;
    for (int field = 0; field < kBetweenParentAndStart; ++field) {
        takeWord(fields);
    }
    const auto startTime = parseUnsigned(takeWord(fields));
    // A number that ends where the text ends may have lost its last digits.
    if (state.size() != 1 || !parent || !startTime || fields.empty()) {
        return std::nullopt;
    }
    return ProcPidStat{text.substr(open + 1, close - open - 1), *parent, *startTime};
}

}  // namespace zephrine
