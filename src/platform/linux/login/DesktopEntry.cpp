// SPDX-License-Identifier: MIT
// GLib reads the file, since that is what most desktops that start programs read it with: one bad
// line, and there is no entry.
#include "platform/linux/login/DesktopEntry.h"

#include <glib.h>

namespace zephrine {

namespace {

constexpr const char* kGroup = "Desktop Entry";

using OwnedError = std::unique_ptr<GError, decltype(&g_error_free)>;
using OwnedString = std::unique_ptr<char, decltype(&g_free)>;
using OwnedStrings = std::unique_ptr<char*, decltype(&g_strfreev)>;

std::vector<std::string> copied(char** strings) {
    return strings == nullptr ? std::vector<std::string>()
                              : std::vector<std::string>(strings, strings + g_strv_length(strings));
}

}  // namespace

void DesktopEntry::Unref::operator()(_GKeyFile* file) const {
    g_key_file_unref(file);
}

DesktopEntry::DesktopEntry() : file_(g_key_file_new()) {}

std::optional<DesktopEntry> DesktopEntry::parse(std::string_view text) {
    DesktopEntry entry;
    // A line with a NUL byte would be read up to there, as if the rest did not exist.
    const bool isText = text.find('\0') == std::string_view::npos;
    if (!isText || g_key_file_load_from_data(entry.file_.get(), text.data(), text.size(),
                                             G_KEY_FILE_KEEP_TRANSLATIONS, nullptr) == FALSE) {
        return std::nullopt;
    }
    return entry;
}

std::optional<std::string> DesktopEntry::string(const char* key) const {
    GError* error = nullptr;
    const OwnedString value(g_key_file_get_string(file_.get(), kGroup, key, &error), g_free);
    const OwnedError failure(error, g_error_free);
    // Up to version 2.74 at least, some errors come with a string.
    return failure ? std::nullopt : std::optional<std::string>(value.get());
}

std::optional<bool> DesktopEntry::boolean(const char* key) const {
    GError* error = nullptr;
    const bool value = g_key_file_get_boolean(file_.get(), kGroup, key, &error) != FALSE;
    const OwnedError failure(error, g_error_free);
    return failure ? std::nullopt : std::optional(value);
}

std::optional<std::vector<std::string>> DesktopEntry::list(const char* key) const {
    const OwnedStrings elements(
        g_key_file_get_string_list(file_.get(), kGroup, key, nullptr, nullptr), g_strfreev);
    return elements ? std::optional(copied(elements.get())) : std::nullopt;
}

std::vector<std::string> DesktopEntry::keys() const {
    const OwnedStrings keys(g_key_file_get_keys(file_.get(), kGroup, nullptr, nullptr), g_strfreev);
    return copied(keys.get());
}

void DesktopEntry::setString(const char* key, const std::string& value) {
    g_key_file_set_string(file_.get(), kGroup, key, value.c_str());
}

std::string DesktopEntry::text() const {
    return OwnedString(g_key_file_to_data(file_.get(), nullptr, nullptr), g_free).get();
}

}  // namespace zephrine
