// SPDX-License-Identifier: MIT
// Unsigned sums and differences that stop at the ends of their range: figures that do not fit
// together, as a container may see them, must not wrap into huge ones.
#pragma once

#include <cstdint>
#include <limits>

namespace zephrine {

constexpr std::uint64_t saturatingSum(std::uint64_t a, std::uint64_t b) {
    constexpr std::uint64_t kMax = std::numeric_limits<std::uint64_t>::max();
    return a > kMax - b ? kMax : a + b;
}

constexpr std::uint64_t saturatingDifference(std::uint64_t a, std::uint64_t b) {
    return a < b ? 0 : a - b;
}

}  // namespace zephrine
