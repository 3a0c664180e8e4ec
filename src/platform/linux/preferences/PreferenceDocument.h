// SPDX-License-Identifier: MIT
// The preference file as a value: one flat JSON object whose keys keep their order, unknown ones
// included, and whose numbers stay what they were, integer or floating-point.
#pragma once

#include <cstddef>
#include <nlohmann/json.hpp>
#include <optional>
#include <string>
#include <string_view>

namespace zephrine {

using PreferenceDocument = nlohmann::ordered_json;

/// A larger file is not ours. The limit also bounds the time for a file full of keys, which takes
/// its square (each is looked up among those before it): a tenth of a second at the worst.
inline constexpr std::size_t kLargestPreferenceFile = std::size_t{64} * 1024;

/// Absent unless `text` is one JSON object, not too large and not too deeply nested: writing a
/// document takes a stack frame for each level. The last of several equal keys counts.
std::optional<PreferenceDocument> parsePreferences(std::string_view text);

/// As a person would like to edit it, ending in a newline.
std::string preferenceText(const PreferenceDocument& document);

}  // namespace zephrine
