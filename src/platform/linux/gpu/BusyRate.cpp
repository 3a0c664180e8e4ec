// SPDX-License-Identifier: MIT
// Busy counters may step back for a while: the larger value then stands until it is passed again
// (Documentation/gpu/drm-usage-stats.rst).
#include "platform/linux/gpu/BusyRate.h"

#include <algorithm>

namespace zephrine {

std::optional<double> BusyRate::next(std::uint64_t busy, std::uint64_t total) {
    if (!last_) {
        last_ = {busy, total};
        return std::nullopt;
    }
    if (total <= last_->total) {
        return std::nullopt;
    }
    const Counters now{std::max(busy, last_->busy), total};
    const auto grown = static_cast<double>(now.busy - last_->busy);
    const auto elapsed = static_cast<double>(now.total - last_->total);
    last_ = now;
    return 100 * grown / elapsed;
}

std::optional<double> plausiblePercent(double percent) {
    constexpr double kMost = 110;
    if (!(percent <= kMost)) {
        return std::nullopt;
    }
    return std::min(percent, 100.0);
}

}  // namespace zephrine
