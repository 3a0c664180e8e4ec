// SPDX-License-Identifier: MIT
#include "platform/linux/login/AutostartEntry.h"

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

/// A value of type string: escaped once more, whatever it is ("Possible value types").
std::string stringValue(std::string_view text) {
    std::string value;
    for (const char character : text) {
        switch (character) {
            case '\\':
                value += "\\\\";
                break;
            case '\n':
                value += "\\n";
                break;
            case '\r':
                value += "\\r";
                break;
            case '\t':
                value += "\\t";
                break;
            default:
                value += character;
        }
    }
    return value;
}

/// The lines that name `program`. GLib looks for a program before it undoes the doubling of percent
/// signs, and finds none that has one in its path: there it starts env, which has none, and the
/// program is named once more, by the key whose value is a plain path.
std::string programLines(std::string_view program) {
    const std::string argument = stringValue(quotedArgument(program));
    return program.find('%') == std::string_view::npos
               ? "Exec=" + argument + '\n'
               : "TryExec=" + stringValue(program) + "\nExec=env " + argument + '\n';
}

}  // namespace

std::string autostartEntry(std::string_view program) {
    // The oldest version that has all of these keys: newer ones are unknown to older validators.
    return "[Desktop Entry]\n"
           "Type=Application\n"
           "Version=1.0\n"
           "Name=Zephrine\n"
           "Comment=CPU and memory in the status bar\n" +
           programLines(program) +
           "Icon=zephrine\n"
           "Terminal=false\n"
           "X-GNOME-Autostart-enabled=true\n";
}

}  // namespace zephrine
