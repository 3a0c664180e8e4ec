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

}  // namespace

std::string autostartEntry(std::string_view program) {
    return "[Desktop Entry]\n"
           "Type=Application\n"
           "Version=1.5\n"
           "Name=Zephrine\n"
           "Comment=CPU and memory in the status bar\n"
           "Exec=" +
           stringValue(quotedArgument(program)) +
           "\n"
           "Icon=zephrine\n"
           "Terminal=false\n"
           "X-GNOME-Autostart-enabled=true\n";
}

}  // namespace zephrine
