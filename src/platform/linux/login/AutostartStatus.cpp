// SPDX-License-Identifier: MIT
// See the header.
#include "platform/linux/login/AutostartStatus.h"

#include <algorithm>
#include <cstddef>
#include <string>
#include <vector>

#include "platform/linux/login/DesktopExec.h"

namespace zephrine {

namespace {

bool endsWithIgnoringCase(std::string_view text, std::string_view lowerCaseEnd) {
    return text.size() >= lowerCaseEnd.size() &&
           std::equal(lowerCaseEnd.rbegin(), lowerCaseEnd.rend(), text.rbegin(),
                      [](char lower, char byte) {
                          return lower == (byte >= 'A' && byte <= 'Z' ? byte - 'A' + 'a' : byte);
                      });
}

/// Plasma, Xfce and LXQt set Hidden; GNOME, Cinnamon and MATE have a switch each, all named alike
/// (X-GNOME-Autostart-enabled, X-MATE-Autostart-enabled). systemd, which starts programs for
/// several of them, heeds GNOME's everywhere and adds X-systemd-skip.
bool isSwitchedOff(const DesktopEntry& entry) {
    if (entry.boolean("Hidden") == true || entry.boolean("X-systemd-skip") == true) {
        return true;
    }
    const std::vector<std::string> keys = entry.keys();
    return std::any_of(keys.begin(), keys.end(), [&entry](const std::string& key) {
        return key.starts_with("X-") && endsWithIgnoringCase(key, "-autostart-enabled") &&
               entry.boolean(key.c_str()) == false;
    });
}

bool hasProgram(const DesktopEntry& entry,
                const std::function<bool(std::string_view)>& programExists) {
    const auto exec = entry.string("Exec");
    const auto program = exec ? programOfExec(*exec) : std::nullopt;
    const auto tryExec = entry.string("TryExec");
    return entry.string("Type") == "Application" && program && programExists(*program) &&
           (!tryExec || tryExec->empty() || programExists(*tryExec));
}

bool contains(const std::optional<std::vector<std::string>>& list, std::string_view name) {
    return list && std::find(list->begin(), list->end(), name) != list->end();
}

/// The first of the desktop's names that either list holds decides; when neither holds any, the
/// entry is for everybody unless it says whom it is for.
bool isForDesktop(const DesktopEntry& entry, std::string_view currentDesktop) {
    const auto only = entry.list("OnlyShowIn");
    const auto never = entry.list("NotShowIn");
    while (!currentDesktop.empty()) {
        const std::size_t end = std::min(currentDesktop.find(':'), currentDesktop.size());
        const std::string_view name = currentDesktop.substr(0, end);
        currentDesktop.remove_prefix(std::min(end + 1, currentDesktop.size()));
        if (contains(only, name)) {
            return true;
        }
        if (contains(never, name)) {
            return false;
        }
    }
    return !only;
}

}  // namespace

LoginItemStatus autostartStatus(const DesktopEntry& entry, std::string_view currentDesktop,
                                const std::function<bool(std::string_view)>& programExists) {
    // First, because a desktop may leave nothing but this in the file.
    if (isSwitchedOff(entry)) {
        return LoginItemStatus::requiresApproval;
    }
    if (!hasProgram(entry, programExists)) {
        return LoginItemStatus::notFound;
    }
    return isForDesktop(entry, currentDesktop) ? LoginItemStatus::enabled
                                               : LoginItemStatus::requiresApproval;
}

}  // namespace zephrine
