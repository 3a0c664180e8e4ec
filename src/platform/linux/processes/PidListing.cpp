// SPDX-License-Identifier: MIT
// See the header.
#include "platform/linux/processes/PidListing.h"

#include <dirent.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstring>
#include <utility>

#include "platform/linux/base/TextScan.h"

namespace zephrine {

std::optional<std::int32_t> pidFromName(std::string_view name) {
    constexpr std::uint64_t kPidLimit = 4'194'304;  // PID_MAX_LIMIT of every 64-bit kernel
    const auto number = parseUnsigned(name);
    if (!number || *number < 1 || *number > kPidLimit || name.front() == '0') {
        return std::nullopt;
    }
    return static_cast<std::int32_t>(*number);
}

std::optional<std::int32_t> newestPid(std::string_view loadavg) {
    auto line = takeLine(loadavg);
    if (!line) {
        return std::nullopt;
    }
    for (int field = 1; field < 5; ++field) {
        takeWord(*line);
    }
    return pidFromName(takeWord(*line));
}

bool listPids(int proc, const std::function<void(std::int32_t)>& found) {
    // getdents64 rather than readdir: no buffer from the heap, and the descriptor is kept.
    if (::lseek(proc, 0, SEEK_SET) < 0) {
        return false;
    }
    alignas(dirent64) std::array<char, std::size_t{16} * 1024> buffer;
    for (;;) {
        const ssize_t length = ::getdents64(proc, buffer.data(), buffer.size());
        if (length <= 0) {
            return length == 0;
        }
        for (std::size_t at = 0; at < static_cast<std::size_t>(length);) {
            const char* const entry = buffer.data() + at;
            unsigned short size = 0;
            std::memcpy(&size, entry + offsetof(dirent64, d_reclen), sizeof size);
            if (const auto pid = pidFromName(entry + offsetof(dirent64, d_name))) {
                found(*pid);
            }
            at += size;
        }
    }
}

ListingPlan ListingGate::next(std::optional<std::int32_t> newest) {
    constexpr unsigned kCapturesPerListing = 16;
    constexpr std::int32_t kFarthestProbe = 2000;

    const auto last = std::exchange(newest_, newest);
    const auto previous = std::exchange(previous_, last);
    const bool due = captures_++ % kCapturesPerListing == 0;
    // Below the last one the numbers have begun anew; far above it they may have gone all round.
    const bool followed = newest && last && *newest >= *last && *newest - *last <= kFarthestProbe;
    if (due || !followed) {
        return {.listAll = true, .distrustKept = !followed};
    }
    // The stretch of the last capture is probed once more: a process has its pid a moment before it
    // can be found under it, and would otherwise stay unknown until the next listing.
    const std::int32_t after = previous ? std::min(*previous, *last) : *last;
    return {.after = std::max(after, *last - kFarthestProbe), .last = *newest};
}

}  // namespace zephrine
