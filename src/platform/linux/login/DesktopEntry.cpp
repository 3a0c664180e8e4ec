// SPDX-License-Identifier: MIT
// The file is read as strictly as GLib's key file parser reads it, since that is what most desktops
// start programs with: one bad line, and there is no entry.
#include "platform/linux/login/DesktopEntry.h"

#include <algorithm>
#include <cstddef>
#include <utility>

namespace zephrine {

namespace {

constexpr std::string_view kBlanks = " \t";

std::string_view trimmed(std::string_view text) {
    const std::size_t begin = text.find_first_not_of(kBlanks);
    if (begin == std::string_view::npos) {
        return {};
    }
    return text.substr(begin, text.find_last_not_of(kBlanks) - begin + 1);
}

std::string_view takeAnyLine(std::string_view& text) {
    const std::size_t end = std::min(text.find('\n'), text.size());
    std::string_view line = text.substr(0, end);
    text.remove_prefix(std::min(end + 1, text.size()));
    if (line.ends_with('\r')) {
        line.remove_suffix(1);
    }
    return trimmed(line);
}

std::optional<std::string_view> groupName(std::string_view line) {
    if (line.size() < 3 || !line.starts_with('[') || !line.ends_with(']')) {
        return std::nullopt;
    }
    const std::string_view name = line.substr(1, line.size() - 2);
    return name.find_first_of("[]") == std::string_view::npos ? std::optional(name) : std::nullopt;
}

/// The character that `\` and `code` stand for; 0 when they stand for none.
char escaped(char code) {
    switch (code) {
        case 's':
            return ' ';
        case 'n':
            return '\n';
        case 't':
            return '\t';
        case 'r':
            return '\r';
        case '\\':
            return '\\';
        default:
            return '\0';
    }
}

}  // namespace

std::optional<DesktopEntry> DesktopEntry::parse(std::string_view text) {
    DesktopEntry entry;
    if (text.find('\0') != std::string_view::npos) {
        return std::nullopt;
    }
    std::optional<std::string_view> group;
    while (!text.empty()) {
        const std::string_view line = takeAnyLine(text);
        if (line.empty() || line.starts_with('#')) {
            continue;
        }
        if (line.starts_with('[')) {
            group = groupName(line);
            if (!group) {
                return std::nullopt;
            }
            continue;
        }
        const std::size_t equals = line.find('=');
        const std::string_view key = trimmed(line.substr(0, equals));
        if (!group || equals == std::string_view::npos || key.empty()) {
            return std::nullopt;
        }
        if (*group == "Desktop Entry") {
            entry.values_.insert_or_assign(std::string(key),
                                           std::string(trimmed(line.substr(equals + 1))));
        }
    }
    return entry;
}

std::optional<std::string> DesktopEntry::string(std::string_view key) const {
    const auto found = values_.find(key);
    if (found == values_.end()) {
        return std::nullopt;
    }
    std::string result;
    for (auto at = found->second.begin(); at != found->second.end(); ++at) {
        if (*at != '\\') {
            result += *at;
            continue;
        }
        const char character = ++at == found->second.end() ? '\0' : escaped(*at);
        if (character == '\0') {
            return std::nullopt;
        }
        result += character;
    }
    return result;
}

std::optional<bool> DesktopEntry::boolean(std::string_view key) const {
    const auto found = values_.find(key);
    const std::string_view value = found == values_.end() ? std::string_view() : found->second;
    if (value == "true" || value == "1") {
        return true;
    }
    return value == "false" || value == "0" ? std::optional(false) : std::nullopt;
}

std::optional<std::vector<std::string>> DesktopEntry::list(std::string_view key) const {
    const auto found = values_.find(key);
    if (found == values_.end()) {
        return std::nullopt;
    }
    std::vector<std::string> elements;
    std::string element;
    for (auto at = found->second.begin(); at != found->second.end(); ++at) {
        if (*at == ';') {
            elements.push_back(std::exchange(element, {}));
        } else if (*at == '\\' && at + 1 != found->second.end()) {
            ++at;
            element += escaped(*at) == '\0' ? *at : escaped(*at);  // "\;" is a semicolon
        } else {
            element += *at;
        }
    }
    if (!element.empty()) {
        elements.push_back(element);
    }
    return elements;
}

}  // namespace zephrine
