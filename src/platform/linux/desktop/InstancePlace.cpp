// SPDX-License-Identifier: MIT
// See the header.
#include "platform/linux/desktop/InstancePlace.h"

#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cstddef>

#include "platform/linux/base/Environment.h"

namespace zephrine {

namespace {

bool isDigit(char character) {
    return character >= '0' && character <= '9';
}

/// ":0.1" is screen 1 of display ":0" (X(7), "DISPLAY NAMES"): still the same session.
std::string withoutScreen(const std::string& display) {
    const std::size_t dot = display.rfind('.');
    const std::size_t colon = display.rfind(':');
    const bool hasScreen =
        colon != std::string::npos && dot != std::string::npos && dot > colon &&
        std::all_of(display.begin() + static_cast<std::ptrdiff_t>(dot) + 1, display.end(), isDigit);
    return hasScreen ? display.substr(0, dot) : display;
}

/// As the XDG Base Directory Specification wants it: the user's own, and closed to others.
bool isPrivateFolder(const std::string& path) {
    struct stat status {};
    return path.starts_with('/') && ::stat(path.c_str(), &status) == 0 && S_ISDIR(status.st_mode) &&
           status.st_uid == ::geteuid() && (status.st_mode & (S_IRWXG | S_IRWXO)) == 0;
}

/// The display in letters, digits and underscores, which file and bus names may consist of.
std::string escaped(std::string_view display) {
    // Names have limits (255 bytes on the bus, 107 for a socket's path). What tells one path to a
    // display from another is its end.
    constexpr std::size_t kLongest = 30;
    constexpr const char* kDigits = "0123456789abcdef";
    std::string result;
    for (const char character :
         display.substr(display.size() - std::min(display.size(), kLongest))) {
        const bool isLetter =
            (character >= 'a' && character <= 'z') || (character >= 'A' && character <= 'Z');
        if (isLetter || isDigit(character)) {
            result += character;
        } else {
            const auto byte = static_cast<unsigned char>(character);
            ((result += '_') += kDigits[byte / 16]) += kDigits[byte % 16];
        }
    }
    return result;
}

}  // namespace

InstancePlace InstancePlace::current(std::string_view platform) {
    InstancePlace place;
    if (platform == "xcb") {
        place.display = withoutScreen(environmentVariable("DISPLAY"));
    } else if (platform == "wayland") {
        place.display = environmentVariable("WAYLAND_DISPLAY");
    }
    const std::string folder = environmentVariable("XDG_RUNTIME_DIR");
    place.runtimeFolder = isPrivateFolder(folder) ? folder : std::string();
    return place;
}

std::string InstancePlace::busName() const {
    // A part of a bus name may not begin with a digit.
    return display.empty() ? "" : std::string(sharedBusName) + ".Display_" + escaped(display);
}

std::string InstancePlace::socketPath() const {
    return display.empty() || runtimeFolder.empty()
               ? ""
               : runtimeFolder + "/zephrine/" + escaped(display) + ".socket";
}

}  // namespace zephrine
