// SPDX-License-Identifier: MIT
#include "text/UTF8.h"

#include <cstddef>

namespace zephrine {

namespace {

constexpr std::string_view replacement = "\xEF\xBF\xBD";

/// What may follow a lead byte: the number of bytes that continue it, and the range of the first
/// of them (narrower than 80..BF where overlong forms, surrogates and values beyond U+10FFFF would
/// begin; Unicode, table 3-7).
struct Continuation {
    std::size_t count;
    unsigned char low;
    unsigned char high;
};

Continuation continuation(unsigned char lead) {
    if (lead >= 0xC2 && lead <= 0xDF) {
        return {1, 0x80, 0xBF};
    }
    if (lead >= 0xE0 && lead <= 0xEF) {
        const unsigned char low = lead == 0xE0 ? 0xA0 : 0x80;
        const unsigned char high = lead == 0xED ? 0x9F : 0xBF;
        return {2, low, high};
    }
    if (lead >= 0xF0 && lead <= 0xF4) {
        const unsigned char low = lead == 0xF0 ? 0x90 : 0x80;
        const unsigned char high = lead == 0xF4 ? 0x8F : 0xBF;
        return {3, low, high};
    }
    return {0, 0, 0};
}

}  // namespace

std::string repairedUTF8(std::string_view bytes) {
    std::string text;
    text.reserve(bytes.size());
    for (std::size_t i = 0; i < bytes.size();) {
        const auto lead = static_cast<unsigned char>(bytes[i]);
        if (lead < 0x80) {
            text += bytes[i++];
            continue;
        }
        Continuation expected = continuation(lead);
        const std::size_t whole = 1 + expected.count;
        std::size_t length = 1;
        while (length < whole && i + length < bytes.size()) {
            const auto next = static_cast<unsigned char>(bytes[i + length]);
            if (next < expected.low || next > expected.high) {
                break;
            }
            expected = {expected.count, 0x80, 0xBF};
            ++length;
        }
        const bool valid = expected.count > 0 && length == whole;
        text += valid ? bytes.substr(i, length) : replacement;
        i += length;
    }
    return text;
}

}  // namespace zephrine
