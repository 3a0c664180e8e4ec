// SPDX-License-Identifier: MIT
// See the header; the parsers of this folder are built from these few steps.
#include "platform/linux/base/TextScan.h"

#include <algorithm>
#include <charconv>
#include <limits>

namespace zephrine {
namespace {

bool isBlank(char character) {
    return character == ' ' || character == '\t';
}

}  // namespace

std::optional<std::string_view> takeLine(std::string_view& text) {
    const std::size_t end = text.find('\n');
    if (end == std::string_view::npos) {
        return std::nullopt;
    }
    const std::string_view line = text.substr(0, end);
    text.remove_prefix(end + 1);
    return line;
}

std::string_view takeWord(std::string_view& line) {
    const char* const begin = std::ranges::find_if_not(line, isBlank);
    const char* const end = std::ranges::find_if(begin, line.end(), isBlank);
    line = {end, line.end()};
    return {begin, end};
}

std::optional<std::uint64_t> parseUnsigned(std::string_view word) {
    std::uint64_t value = 0;
    const char* const end = word.data() + word.size();
    const auto [rest, error] = std::from_chars(word.data(), end, value);
    if (error != std::errc() || rest != end) {
        return std::nullopt;
    }
    return value;
}

std::optional<std::uint64_t> parseKilobytes(std::string_view words) {
    const auto number = parseUnsigned(takeWord(words));
    if (!number || takeWord(words) != "kB" ||
        *number > std::numeric_limits<std::uint64_t>::max() / 1024) {
        return std::nullopt;
    }
    return *number * 1024;
}

}  // namespace zephrine
