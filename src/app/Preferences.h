// SPDX-License-Identifier: MIT
// The user's three choices: their keys, allowed values and defaults. Nothing is cached: every use
// reads the store again, and a value that is not allowed reads as the default as a whole.
#pragma once

#include <string_view>

#include "platform/PreferenceStore.h"

namespace zephrine::preferences {

inline constexpr std::string_view refreshIntervalKey = "refreshInterval";
inline constexpr std::string_view fontSizeKey = "fontSize";
/// Boolean: RAM is shown in the status item in gigabytes instead of percent.
inline constexpr std::string_view ramInGBKey = "ramInGB";

/// Seconds between two refreshes: 0.5, 1, 2 or 5; by default 1.
double interval(const PreferenceStore& store);

/// Points of the status item's text: 8, 9 or 10; by default 9.
double fontSize(const PreferenceStore& store);

}  // namespace zephrine::preferences
