// SPDX-License-Identifier: MIT
// See the header.
#include "platform/linux/formatting/ByteCount.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <string_view>

namespace zephrine {

namespace {

constexpr double kStep = 1024;

struct Unit {
    std::string_view name;
    int decimals;  ///< the most that this unit shows
};

constexpr std::array<Unit, 7> kUnits{{
    {" bytes", 0},
    {" KB", 0},
    {" MB", 1},
    {" GB", 2},
    {" TB", 2},
    {" PB", 2},
    {" EB", 2},
}};

int decimalsFor(double value, const Unit& unit) {
    const int before = value < 10 ? 1 : value < 100 ? 2 : 3;
    return std::min(unit.decimals, 3 - before);
}

double rounded(double value, int decimals) {
    const double scale = std::pow(10.0, decimals);
    return std::nearbyint(value * scale) / scale;
}

}  // namespace

std::string byteCountText(std::int64_t bytes, const NumberSymbols& symbols) {
    if (bytes == 0) {
        return "Zero KB";
    }
    if (bytes == 1 || bytes == -1) {
        return localizedText(static_cast<double>(bytes), 0, symbols) + " byte";
    }
    double value = std::abs(static_cast<double>(bytes));
    std::size_t unit = 0;
    // By the rounded value: what would read "1,024 KB" is 1 MB.
    while (unit + 1 < kUnits.size() && rounded(value, decimalsFor(value, kUnits[unit])) >= kStep) {
        value /= kStep;
        ++unit;
    }
    const int decimals = decimalsFor(value, kUnits[unit]);
    const double shown = bytes < 0 ? -value : value;
    return localizedText(shown, decimals, symbols).append(kUnits[unit].name);
}

}  // namespace zephrine
