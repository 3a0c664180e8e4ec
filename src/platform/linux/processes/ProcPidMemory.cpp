// SPDX-License-Identifier: MIT
// See the header.
#include "platform/linux/processes/ProcPidMemory.h"

#include <limits>

#include "platform/linux/base/TextScan.h"

namespace zephrine {

std::optional<std::uint64_t> anonymousPages(std::string_view statm) {
    takeWord(statm);
    const auto resident = parseUnsigned(takeWord(statm));
    const auto shared = parseUnsigned(takeWord(statm));
    if (!resident || !shared || statm.empty()) {
        return std::nullopt;
    }
    return *resident > *shared ? *resident - *shared : 0;
}

std::optional<std::uint64_t> anonymousAndSwappedBytes(std::string_view status) {
    // The kernel escapes newlines in the name, so a line that begins like this is its own.
    constexpr std::string_view kAnonymous = "RssAnon:";
    constexpr std::string_view kSwapped = "VmSwap:";
    std::optional<std::uint64_t> anonymous;
    std::optional<std::uint64_t> swapped;
    while (const auto line = takeLine(status)) {
        if (line->starts_with(kAnonymous)) {
            anonymous = parseKilobytes(line->substr(kAnonymous.size()));
        } else if (line->starts_with(kSwapped)) {
            swapped = parseKilobytes(line->substr(kSwapped.size()));
        }
    }
    if (!anonymous) {
        return std::nullopt;
    }
    const std::uint64_t rest = std::numeric_limits<std::uint64_t>::max() - *anonymous;
    return *anonymous + (swapped.value_or(0) < rest ? swapped.value_or(0) : rest);
}

bool swapInUse(std::string_view swaps) {
    takeLine(swaps);  // the header
    while (auto line = takeLine(swaps)) {
        takeWord(*line);  // file name; the kernel writes a blank in it as \040
        takeWord(*line);  // type
        takeWord(*line);  // size
        if (parseUnsigned(takeWord(*line)).value_or(0) > 0) {
            return true;
        }
    }
    return false;
}

}  // namespace zephrine
