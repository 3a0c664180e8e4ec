// SPDX-License-Identifier: MIT
// Walking through the text of a kernel file: complete lines, words, and unsigned numbers. Nothing
// is copied, and nothing outside the given text is looked at.
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace zephrine {

/// Takes the next line, without its end, off the front of `text`. Absent when no complete line is
/// left: a line without its newline was cut off, perhaps in the middle of a number.
std::optional<std::string_view> takeLine(std::string_view& text);

/// Takes the next word off the front of `line`; empty when none is left. Blanks and tabs separate.
std::string_view takeWord(std::string_view& line);

/// The number that `word` is, digits only, below 2^64; absent otherwise.
std::optional<std::uint64_t> parseUnsigned(std::string_view word);

/// The bytes of "number kB", blanks before either; absent when `words` is something else, or when
/// they reach 2^64. The kernel's "kB" are 1024 bytes.
std::optional<std::uint64_t> parseKilobytes(std::string_view words);

}  // namespace zephrine
