// SPDX-License-Identifier: MIT
// GLib splits the arguments as a shell does, which "Exec" is made for (Desktop Entry Specification
// 1.5, "The Exec key"); the field codes are what it knows nothing of.
#include "platform/linux/login/DesktopExec.h"

#include <glib.h>

#include <memory>
#include <string_view>

namespace zephrine {

std::optional<std::string> programOfExec(const std::string& exec) {
    char** arguments = nullptr;
    if (g_shell_parse_argv(exec.c_str(), nullptr, &arguments, nullptr) == FALSE) {
        return std::nullopt;
    }
    const std::unique_ptr<char*, decltype(&g_strfreev)> owned(arguments, g_strfreev);
    std::string program;
    const std::string_view argument = arguments[0];
    for (std::size_t at = 0; at < argument.size(); ++at) {
        if (argument[at] == '%' && (++at == argument.size() || argument[at] != '%')) {
            return std::nullopt;  // a field code, which cannot be a program
        }
        program += argument[at];
    }
    return program.empty() ? std::nullopt : std::optional(program);
}

}  // namespace zephrine
