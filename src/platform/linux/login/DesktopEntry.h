// SPDX-License-Identifier: MIT
// A desktop entry: the text file with which the freedesktop world describes a program and, in the
// autostart folder, asks for its start at login (Desktop Entry Specification 1.5).
#pragma once

#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace zephrine {

/// The keys and raw values of the group "Desktop Entry"; other groups are checked and dropped.
class DesktopEntry {
public:
    /// Absent when the text is malformed: desktops then ignore the whole file.
    static std::optional<DesktopEntry> parse(std::string_view text);

    /// The value with its escapes (\s \n \t \r \\) resolved; absent without the key or when it
    /// holds any other escape.
    [[nodiscard]] std::optional<std::string> string(std::string_view key) const;
    /// Absent without the key or when it is neither "true" nor "false" ("1" and "0" of old).
    [[nodiscard]] std::optional<bool> boolean(std::string_view key) const;
    /// The elements of a list separated by semicolons; absent without the key.
    [[nodiscard]] std::optional<std::vector<std::string>> list(std::string_view key) const;

    [[nodiscard]] const std::map<std::string, std::string, std::less<>>& values() const {
        return values_;
    }

private:
    std::map<std::string, std::string, std::less<>> values_;
};

}  // namespace zephrine
