// SPDX-License-Identifier: MIT
// See the header. The format is RFC 8259.
#include "platform/linux/preferences/PreferenceDocument.h"

#include <algorithm>
#include <cstddef>
#include <utility>

namespace zephrine {

namespace {

/// How deep the brackets of a JSON text nest. Of any other text the answer means nothing, and the
/// parser refuses it whatever this says.
int nestingDepth(std::string_view text) {
    int depth = 0;
    int deepest = 0;
    bool inString = false;
    for (std::size_t at = 0; at < text.size(); ++at) {
        const char byte = text[at];
        if (inString && byte == '\\') {
            ++at;
        } else if (byte == '"') {
            inString = !inString;
        } else if (!inString && (byte == '{' || byte == '[')) {
            deepest = std::max(deepest, ++depth);
        } else if (!inString && (byte == '}' || byte == ']')) {
            --depth;
        }
    }
    return deepest;
}

}  // namespace

std::optional<PreferenceDocument> parsePreferences(std::string_view text) {
    constexpr int kDeepest = 64;
    // A zero byte would end the text for the parser, and what follows it would be lost unseen.
    if (text.size() > kLargestPreferenceFile || text.find('\0') != std::string_view::npos ||
        nestingDepth(text) > kDeepest) {
        return std::nullopt;
    }
    constexpr bool kThrow = false;
    PreferenceDocument document = PreferenceDocument::parse(text, nullptr, kThrow);
    return document.is_object() ? std::optional(std::move(document)) : std::nullopt;
}

std::string preferenceText(const PreferenceDocument& document) {
    constexpr int kIndent = 4;
    // A text that is not UTF-8 cannot stand in JSON: its bad bytes become U+FFFD.
    return document.dump(kIndent, ' ', false, PreferenceDocument::error_handler_t::replace) + "\n";
}

}  // namespace zephrine
