// SPDX-License-Identifier: MIT
// From counters of busy time to percent.
#pragma once

#include <cstdint>
#include <optional>

namespace zephrine {

class BusyRate {
public:
    /// The share in percent of the growth of `total` since the last call by which `busy` grew;
    /// absent at the first call and when no time passed.
    std::optional<double> next(std::uint64_t busy, std::uint64_t total);

private:
    struct Counters {
        std::uint64_t busy;
        std::uint64_t total;
    };
    std::optional<Counters> last_;
};

/// `percent`, at most 100. Two counters that are not read at the very same moment come to a little
/// more under full load; much more cannot be true, and is absent.
std::optional<double> plausiblePercent(double percent);

}  // namespace zephrine
