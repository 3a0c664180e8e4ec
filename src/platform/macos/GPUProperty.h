// SPDX-License-Identifier: MIT
// What a driver publishes about its GPU, freed from the system's collection types. Drivers write
// what they like, so nothing here relies on the kind of a key or a value.
#pragma once

#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "platform/GPURegistry.h"

namespace zephrine {

/// One entry of a dictionary. A key that is no text is absent, and so is a value that is neither a
/// number nor a text.
struct PropertyEntry {
    std::optional<std::string> key;
    std::optional<std::variant<double, std::string>> value;
};

/// A dictionary of the entries whose values are known kinds; absent when any key is no text: then
/// it is not a dictionary of the kind that was asked for, whatever else it holds.
std::optional<PropertyDictionary> propertyDictionary(std::vector<PropertyEntry> entries);

}  // namespace zephrine
