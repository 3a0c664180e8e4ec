// SPDX-License-Identifier: MIT
// Looks at the bytes: a lead byte stands nowhere else in UTF-8, so that a pattern which begins with
// one is found exactly where its character is, in invalid text as well.
#include "text/SingleLine.h"

#include <cstddef>

namespace zephrine {

namespace {

constexpr std::string_view space = " ";
constexpr std::string_view replacement = "\xEF\xBF\xBD";

/// How many bytes a character takes up and what is shown in its place; no bytes when it stays.
struct Replaced {
    std::size_t length = 0;
    std::string_view by;
};

bool isBetween(unsigned char byte, unsigned char first, unsigned char last) {
    return byte >= first && byte <= last;
}

/// What becomes of the character that `text`, which is not empty, begins with.
Replaced replacedAtStart(std::string_view text) {
    const auto byte = [text](std::size_t i) {
        return i < text.size() ? static_cast<unsigned char>(text[i])
                               : static_cast<unsigned char>(0);
    };
    if (byte(0) < 0x20 || byte(0) == 0x7F) {
        return {1, space};  // U+0000 to U+001F, U+007F
    }
    if (byte(0) == 0xC2 && isBetween(byte(1), 0x80, 0x9F)) {
        return {2, space};  // U+0080 to U+009F
    }
    if (byte(0) == 0xE2 && byte(1) == 0x80 && isBetween(byte(2), 0xA8, 0xA9)) {
        return {3, space};  // the separators U+2028 and U+2029
    }
    // The embeddings, overrides (U+202A to U+202E) and isolates (U+2066 to U+2069) of the
    // bidirectional algorithm (Unicode, annex 9). They reach beyond the text that they stand in: a
    // name with one would turn the number after it around.
    if (byte(0) == 0xE2 && ((byte(1) == 0x80 && isBetween(byte(2), 0xAA, 0xAE)) ||
                            (byte(1) == 0x81 && isBetween(byte(2), 0xA6, 0xA9)))) {
        return {3, replacement};
    }
    return {};
}

}  // namespace

std::string singleLine(std::string_view text) {
    std::string line;
    line.reserve(text.size());
    while (!text.empty()) {
        const Replaced replaced = replacedAtStart(text);
        const bool stays = replaced.length == 0;
        line += stays ? text.substr(0, 1) : replaced.by;
        text.remove_prefix(stays ? 1 : replaced.length);
    }
    return line;
}

}  // namespace zephrine
