// SPDX-License-Identifier: MIT
#include "platform/linux/login/AutostartEntry.h"

#include "platform/linux/login/DesktopEntry.h"

namespace zephrine {

namespace {

/// One argument of an "Exec" value: quoted, with the shell's special characters and the field
/// codes' percent sign escaped ("The Exec key").
std::string quotedArgument(std::string_view argument) {
    std::string quoted = "\"";
    for (const char character : argument) {
        if (character == '%') {
            quoted += "%%";
        } else if (character == '"' || character == '`' || character == '$' || character == '\\') {
            (quoted += '\\') += character;
        } else {
            quoted += character;
        }
    }
    return quoted + '"';
}

}  // namespace

std::string autostartEntry(std::string_view program) {
    DesktopEntry entry;
    entry.setString("Type", "Application");
    // The oldest version that has all of these keys: newer ones are unknown to older validators.
    entry.setString("Version", "1.0");
    entry.setString("Name", "Zephrine");
    entry.setString("Comment", "CPU and memory in the status bar");
    if (program.find('%') == std::string_view::npos) {
        entry.setString("Exec", quotedArgument(program));
    } else {
        // GLib looks for a program before it undoes the doubling of percent signs, and finds none
        // that has one in its path: there it starts env, which has none, and the program is named
        // once more, by the key whose value is a plain path.
        entry.setString("TryExec", std::string(program));
        entry.setString("Exec", "env " + quotedArgument(program));
    }
    entry.setString("Icon", "zephrine");
    entry.setString("Terminal", "false");
    entry.setString("X-GNOME-Autostart-enabled", "true");
    return entry.text();
}

}  // namespace zephrine
