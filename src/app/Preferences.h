// SPDX-License-Identifier: MIT
// The user's three choices: their keys, allowed values, stored forms and defaults. Nothing is
// cached: every use reads the store again, and a stored value that is not among the allowed ones
// reads as the default as a whole.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "platform/PreferenceStore.h"

namespace zephrine {

/// One allowed value: what the user reads, and the number in the form in which it is stored.
struct NumberOption {
    std::string_view title;
    std::variant<double, std::int64_t> stored;

    [[nodiscard]] double value() const;
};

/// A choice among a few numbers.
struct NumberPreference {
    std::string_view key;
    std::span<const NumberOption> options;  ///< in menu order
    std::size_t defaultIndex;

    /// The option that the store holds, or the default; its index and its value.
    [[nodiscard]] std::size_t index(const PreferenceStore& store) const;
    [[nodiscard]] double value(const PreferenceStore& store) const;

    /// Stores the option at `index`; an index without an option stops the program.
    void choose(int index, PreferenceStore& store) const;

    [[nodiscard]] std::vector<std::string> titles() const;
};

namespace preferences {

inline constexpr std::array<NumberOption, 4> intervals{{
    {"0.5 seconds", 0.5},
    {"1 second", 1.0},
    {"2 seconds", std::int64_t{2}},
    {"5 seconds", std::int64_t{5}},
}};
/// Seconds between two refreshes.
inline constexpr NumberPreference refreshInterval{"refreshInterval", intervals, 1};

inline constexpr std::array<NumberOption, 3> fontSizes{{
    {"Small", 8.0},
    {"Medium", std::int64_t{9}},
    {"Large", std::int64_t{10}},
}};
/// Points of the status item's text.
inline constexpr NumberPreference fontSize{"fontSize", fontSizes, 1};

/// Boolean: RAM is shown in the status item in gigabytes instead of percent.
inline constexpr std::string_view ramInGBKey = "ramInGB";

}  // namespace preferences

}  // namespace zephrine
