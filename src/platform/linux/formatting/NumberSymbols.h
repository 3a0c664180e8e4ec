// SPDX-License-Identifier: MIT
// The signs with which the user's locale writes numbers, and the writing itself. The C library's
// own formatting would follow the global locale, which a toolkit may have set to anything.
#pragma once

#include <string>

namespace zephrine {

/// UTF-8. An empty `grouping` means that digits are not grouped.
struct NumberSymbols {
    std::string decimal = ".";
    std::string grouping;
    bool operator==(const NumberSymbols&) const = default;
};

/// Those of LC_NUMERIC as the environment (LC_ALL, LC_NUMERIC, LANG) names it; those of the C
/// locale when that locale is not installed.
NumberSymbols userNumberSymbols();

/// `value` with at most `decimals` digits behind the decimal sign, trailing zeros dropped, and the
/// digits before it grouped by threes.
std::string localizedText(double value, int decimals, const NumberSymbols& symbols);

}  // namespace zephrine
