// SPDX-License-Identifier: MIT
// Format: Documentation/accounting/psi.rst. Each line reads
// "some avg10=0.00 avg60=0.00 avg300=0.00 total=0"; only the totals are of use here, the averages
// stay high for a quarter of a minute after their cause is gone.
#include "platform/linux/counters/Pressure.h"

#include "platform/linux/base/TextScan.h"

namespace zephrine {
namespace {

std::optional<std::uint64_t> parseTotal(std::string_view fields) {
    constexpr std::string_view kKey = "total=";
    for (std::string_view word = takeWord(fields); !word.empty(); word = takeWord(fields)) {
        if (word.starts_with(kKey)) {
            return parseUnsigned(word.substr(kKey.size()));
        }
    }
    return std::nullopt;
}

}  // namespace

std::optional<StallTimes> parsePressure(std::string_view text) {
    std::optional<std::uint64_t> some;
    std::optional<std::uint64_t> full;
    while (auto line = takeLine(text)) {
        const std::string_view kind = takeWord(*line);
        if (kind == "some" && !some) {
            some = parseTotal(*line);
        } else if (kind == "full" && !full) {
            full = parseTotal(*line);
        }
    }
    if (!some || !full) {
        return std::nullopt;
    }
    return StallTimes{.some = *some, .full = *full};
}

}  // namespace zephrine
