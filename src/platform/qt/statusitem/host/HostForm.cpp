// SPDX-License-Identifier: MIT
// The table of panels, as seen on running ones: a wide picture that a panel cannot show becomes a
// strip seven pixels high or is refused, so "squares" is the answer wherever that was seen.
#include "platform/qt/statusitem/host/HostForm.h"

#include <algorithm>
#include <array>

namespace zephrine {

namespace {

struct KnownHost {
    std::string_view prefix;
    HostForm form;
};

// A panel of Xfce has its tray in a process of its own (panel-N-systray) or not.
constexpr std::array<std::string_view, 2> kXfce{"panel-", "xfce4-panel"};

constexpr std::array kKnownHosts{
    KnownHost{"waybar", HostForm::line},
    KnownHost{"xapp-sn-watcher", HostForm::wideDoubled},  // Cinnamon
    KnownHost{"notification-ar", HostForm::wideDoubled},  // MATE: notification-area-applet
    KnownHost{kXfce[0], HostForm::squares},
    KnownHost{kXfce[1], HostForm::squares},
    KnownHost{"lxqt-panel", HostForm::squares},
    KnownHost{"kded", HostForm::squares},  // Plasma's watcher; the version number follows
    KnownHost{"plasmashell", HostForm::squares},
    KnownHost{"swaybar", HostForm::multipliedSquares},
    KnownHost{"budgie", HostForm::squares},
    KnownHost{"gnome-shell", HostForm::labelled},
};

}  // namespace

HostForm formOfHost(const HostProcess& host) {
    constexpr int firstWithWideFiles = 45;
    if (host.command == "gnome-shell" && host.version >= firstWithWideFiles) {
        return HostForm::wideFile;
    }
    const auto* const known = std::find_if(
        kKnownHosts.begin(), kKnownHosts.end(),
        [&](const KnownHost& candidate) { return host.command.starts_with(candidate.prefix); });
    return known == kKnownHosts.end() ? HostForm::mixed : known->form;
}

bool hasBetterTray(const HostProcess& host) {
    return std::any_of(kXfce.begin(), kXfce.end(),
                       [&](std::string_view prefix) { return host.command.starts_with(prefix); });
}

}  // namespace zephrine
