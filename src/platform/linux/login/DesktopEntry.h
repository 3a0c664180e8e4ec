// SPDX-License-Identifier: MIT
// A desktop entry: the text file with which the freedesktop world describes a program and, in the
// autostart folder, asks for its start at login (Desktop Entry Specification 1.5).
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

struct _GKeyFile;

namespace zephrine {

/// The keys of the group "Desktop Entry"; other groups are checked and ignored.
class DesktopEntry {
public:
    DesktopEntry();
    /// Absent when the text is malformed: desktops then ignore the whole file.
    static std::optional<DesktopEntry> parse(std::string_view text);

    /// The value with its escapes (\s \n \t \r \\) resolved; absent without the key, when it holds
    /// any other escape, or when it is not UTF-8.
    [[nodiscard]] std::optional<std::string> string(const char* key) const;
    /// Absent without the key or when it is neither "true" nor "false" ("1" and "0" of old).
    [[nodiscard]] std::optional<bool> boolean(const char* key) const;
    /// The elements of a list separated by semicolons; absent as for `string`.
    [[nodiscard]] std::optional<std::vector<std::string>> list(const char* key) const;
    [[nodiscard]] std::vector<std::string> keys() const;

    /// Adds a key, whose value is escaped as need be.
    void setString(const char* key, const std::string& value);
    /// The text of the entry, its keys in the order in which they were set.
    [[nodiscard]] std::string text() const;

private:
    struct Unref {
        void operator()(_GKeyFile* file) const;
    };
    std::unique_ptr<_GKeyFile, Unref> file_;
};

}  // namespace zephrine
