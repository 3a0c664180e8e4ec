// SPDX-License-Identifier: MIT
// The graphics cards of this machine, as far as the kernel tells without touching them.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace zephrine {

struct GraphicsCard {
    std::string path;     ///< /sys/class/drm/cardN; empty when the driver registers no such card
    std::string device;   ///< the folder of the device that is the card
    std::string driver;   ///< the kernel driver's name; empty when it has none
    std::string address;  ///< the device's name on its bus; of PCI devices "0000:01:00.0"
};

/// N when `name` is "cardN"; absent for connectors ("card0-DP-1") and render nodes ("renderD128").
std::optional<unsigned> cardNumber(std::string_view name);

/// All cards by rising number, then those that only NVIDIA's driver knows. Absent when the folder
/// cannot be read; empty when there is none.
std::optional<std::vector<GraphicsCard>> findGraphicsCards(const std::string& sys);

}  // namespace zephrine
