// SPDX-License-Identifier: MIT
// The quoting of "Exec" (Desktop Entry Specification 1.5, "The Exec key"): arguments stand between
// blanks; one in double quotes may hold blanks, with a backslash before " ` $ and \.
#include "platform/linux/login/DesktopExec.h"

#include <algorithm>
#include <cstddef>

namespace zephrine {

namespace {

/// The first argument without its quotes, field codes still in it.
std::optional<std::string> firstArgument(std::string_view exec) {
    constexpr std::string_view kReserved = "\t\n'<>~|&;*?#()`$";
    std::string argument;
    bool quoted = false;
    for (std::size_t at = std::min(exec.find_first_not_of(' '), exec.size()); at < exec.size();
         ++at) {
        const char byte = exec[at];
        if (byte == '"') {
            quoted = !quoted;
        } else if (byte == '\\') {
            if (++at == exec.size()) {
                return std::nullopt;
            }
            argument += exec[at];
        } else if (!quoted && byte == ' ') {
            break;
        } else if (!quoted && kReserved.find(byte) != std::string_view::npos) {
            return std::nullopt;
        } else {
            argument += byte;
        }
    }
    return quoted ? std::nullopt : std::optional(argument);
}

}  // namespace

std::optional<std::string> programOfExec(std::string_view exec) {
    const auto argument = firstArgument(exec);
    if (!argument || argument->empty()) {
        return std::nullopt;
    }
    std::string program;
    for (std::size_t at = 0; at < argument->size(); ++at) {
        const char byte = (*argument)[at];
        if (byte == '%' && (++at == argument->size() || (*argument)[at] != '%')) {
            return std::nullopt;  // a field code, which cannot be a program
        }
        program += byte;
    }
    return program;
}

}  // namespace zephrine
