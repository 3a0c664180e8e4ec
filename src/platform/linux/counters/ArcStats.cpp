// SPDX-License-Identifier: MIT
// Format: /proc/spl/kstat/zfs/arcstats is a "kstat" table: two lines of heading, then lines of
// "name type data" where type 4 is an unsigned 64-bit number.
#include "platform/linux/counters/ArcStats.h"

#include "platform/linux/base/SaturatingMath.h"
#include "platform/linux/base/TextScan.h"

namespace zephrine {

std::optional<std::uint64_t> parseReclaimableArc(std::string_view arcstats) {
    std::optional<std::uint64_t> size;
    std::optional<std::uint64_t> minimum;
    while (auto line = takeLine(arcstats)) {
        const std::string_view name = takeWord(*line);
        const bool isNumber = takeWord(*line) == "4";
        if (isNumber && name == "size" && !size) {
            size = parseUnsigned(takeWord(*line));
        } else if (isNumber && name == "c_min" && !minimum) {
            minimum = parseUnsigned(takeWord(*line));
        }
    }
    if (!size || !minimum) {
        return std::nullopt;
    }
    return saturatingDifference(*size, *minimum);
}

}  // namespace zephrine
