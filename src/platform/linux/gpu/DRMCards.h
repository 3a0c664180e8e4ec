// SPDX-License-Identifier: MIT
// The graphics cards that the kernel knows.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace zephrine {

struct DRMCard {
    std::string path;    ///< /sys/class/drm/cardN
    std::string driver;  ///< the kernel driver's name; empty when it has none
};

/// N when `name` is "cardN"; absent for connectors ("card0-DP-1") and render nodes ("renderD128").
std::optional<unsigned> cardNumber(std::string_view name);

/// All cards by rising number. Absent when the folder cannot be read; empty when there is none.
std::optional<std::vector<DRMCard>> findDRMCards(const std::string& sys);

}  // namespace zephrine
