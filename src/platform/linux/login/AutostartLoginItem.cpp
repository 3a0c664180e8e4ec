// SPDX-License-Identifier: MIT
// See the header.
#include "platform/linux/login/AutostartLoginItem.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <climits>
#include <cstddef>
#include <system_error>
#include <utility>

#include "platform/linux/base/ConfigHome.h"
#include "platform/linux/base/Environment.h"
#include "platform/linux/base/FileDescriptor.h"
#include "platform/linux/base/FileReplacement.h"
#include "platform/linux/login/AutostartEntry.h"
#include "platform/linux/login/AutostartStatus.h"

namespace zephrine {

namespace {

/// Where this program's file is now (proc(5), /proc/pid/exe); empty when it is gone.
std::string ownProgram() {
    std::array<char, PATH_MAX> buffer;
    const ssize_t length = ::readlink("/proc/self/exe", buffer.data(), buffer.size());
    if (length <= 0 || static_cast<std::size_t>(length) == buffer.size()) {
        return {};
    }
    std::string path(buffer.data(), static_cast<std::size_t>(length));
    return ::access(path.c_str(), X_OK) == 0 ? path : std::string();
}

bool isExecutableFile(const std::string& path) {
    struct stat status {};
    return ::stat(path.c_str(), &status) == 0 && S_ISREG(status.st_mode) &&
           ::faccessat(AT_FDCWD, path.c_str(), X_OK, AT_EACCESS) == 0;
}

}  // namespace

AutostartEnvironment AutostartEnvironment::current() {
    std::string program = ownProgram();
    std::string sandbox = sandboxOf(program, environmentVariable("SNAP"), "/.flatpak-info");
    return {.configHome = zephrine::configHome(),
            .currentDesktop = environmentVariable("XDG_CURRENT_DESKTOP"),
            .searchPath = environmentVariable("PATH"),
            .program = std::move(program),
            .sandbox = std::move(sandbox)};
}

std::string sandboxOf(const std::string& program, const std::string& snap,
                      const char* flatpakInfo) {
    if (::access(flatpakInfo, F_OK) == 0) {
        return "Flatpak";
    }
    // The variable alone says little: programs that a snap starts inherit it.
    return !snap.empty() && program.starts_with(snap + '/') ? "Snap" : "";
}

AutostartLoginItem::AutostartLoginItem(AutostartEnvironment environment)
    : environment_(std::move(environment)) {}

std::string AutostartLoginItem::path() const {
    return environment_.configHome + "/autostart/zephrine.desktop";
}

LoginItemStatus AutostartLoginItem::status() const {
    if (environment_.configHome.empty() || !environment_.sandbox.empty()) {
        return LoginItemStatus::notFound;
    }
    const FileDescriptor file(::open(path().c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY));
    if (!file) {
        const bool absent = errno == ENOENT || errno == ENOTDIR;
        return absent ? LoginItemStatus::notRegistered : LoginItemStatus::notFound;
    }
    std::array<char, std::size_t{64} * 1024> buffer;
    const auto text = file.read(buffer);
    const auto entry =
        text && text->size() < buffer.size() ? DesktopEntry::parse(*text) : std::nullopt;
    if (!entry) {
        return LoginItemStatus::notFound;
    }
    return autostartStatus(*entry, environment_.currentDesktop,
                           [this](std::string_view program) { return programExists(program); });
}

std::optional<std::string> AutostartLoginItem::registerItem() {
    if (!environment_.sandbox.empty()) {
        return environment_.sandbox +
               " keeps Zephrine from its login items. Add Zephrine to the startup applications in "
               "the settings of your desktop.";
    }
    if (environment_.configHome.empty()) {
        return "There is no home folder to keep the entry in.";
    }
    if (environment_.program.empty()) {
        return "The program's own file cannot be found.";
    }
    if (const auto error = replaceFile(path(), autostartEntry(environment_.program))) {
        return path() + ": " + error.message();
    }
    return std::nullopt;
}

std::optional<std::string> AutostartLoginItem::unregisterItem() {
    if (environment_.configHome.empty() || !environment_.sandbox.empty() ||
        ::unlink(path().c_str()) == 0 || errno == ENOENT || errno == ENOTDIR) {
        return std::nullopt;
    }
    return path() + ": " + std::system_category().message(errno);
}

bool AutostartLoginItem::programExists(std::string_view program) const {
    if (program.find('/') != std::string_view::npos) {
        return program.starts_with('/') && isExecutableFile(std::string(program));
    }
    std::string_view rest = environment_.searchPath;
    while (!rest.empty()) {
        const std::size_t end = std::min(rest.find(':'), rest.size());
        const std::string folder(rest.substr(0, end));
        rest.remove_prefix(std::min(end + 1, rest.size()));
        if (folder.starts_with('/') && isExecutableFile(folder + '/' + std::string(program))) {
            return true;
        }
    }
    return false;
}

}  // namespace zephrine
