// SPDX-License-Identifier: MIT
// See the header. The locale is asked through an object of its own; no global state is touched.
#include "platform/linux/formatting/NumberSymbols.h"

#include <langinfo.h>
#include <locale.h>  // NOLINT(modernize-deprecated-headers): newlocale is POSIX's, not C++'s

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <string_view>

#include "text/Decimal.h"

namespace zephrine {

namespace {

bool isASCII(std::string_view text) {
    return std::all_of(text.begin(), text.end(),
                       [](char byte) { return static_cast<unsigned char>(byte) < 0x80; });
}

void group(std::string& text, std::size_t firstDigit, std::size_t end, const std::string& sign) {
    for (std::size_t at = end; at > firstDigit + 3;) {
        at -= 3;
        text.insert(at, sign);
    }
}

}  // namespace

NumberSymbols userNumberSymbols() {
    NumberSymbols symbols;
    const locale_t locale = ::newlocale(LC_NUMERIC_MASK | LC_CTYPE_MASK, "", nullptr);
    if (locale == nullptr) {
        return symbols;
    }
    const std::string radix = ::nl_langinfo_l(RADIXCHAR, locale);
    const std::string grouping = ::nl_langinfo_l(THOUSEP, locale);
    const bool isUTF8 = std::string_view(::nl_langinfo_l(CODESET, locale)) == "UTF-8";
    ::freelocale(locale);
    if (!radix.empty() && (isUTF8 || isASCII(radix))) {
        symbols.decimal = radix;
    }
    if (isUTF8 || isASCII(grouping)) {
        symbols.grouping = grouping;
    }
    return symbols;
}

std::string localizedText(double value, int decimals, const NumberSymbols& symbols) {
    std::string text = decimal(value, decimals);
    if (!std::isfinite(value)) {
        return text;
    }
    const std::size_t point = std::min(text.find('.'), text.size());
    if (point < text.size()) {
        text.erase(std::max(point, text.find_last_not_of('0') + 1));
    }
    if (text.ends_with('.')) {
        text.pop_back();
    }
    if (text == "-0") {
        text = "0";
    }
    if (point < text.size()) {
        text.replace(point, 1, symbols.decimal);
    }
    const std::size_t firstDigit = text.starts_with('-') ? 1 : 0;
    group(text, firstDigit, std::min(point, text.size()), symbols.grouping);
    return text;
}

}  // namespace zephrine
