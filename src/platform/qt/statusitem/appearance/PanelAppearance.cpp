// SPDX-License-Identifier: MIT
// When to look at the panel, and what is known without looking.
#include "platform/qt/statusitem/appearance/PanelAppearance.h"

#include <string_view>
#include <utility>

namespace zephrine {

namespace {

// A little less than two seconds, so that a caller who asks every second or two is not put off by
// the jitter of its own timer.
constexpr std::chrono::milliseconds kRest{1900};

/// GNOME's top bar is dark in every theme of its own. The bars are dark as they come, and exist
/// under Wayland alone, where nobody can look at them.
bool isKnownToBeDark(std::string_view command) {
    return command == "gnome-shell" || command == "waybar" || command == "swaybar";
}

}  // namespace

PanelAppearance::PanelAppearance(PanelProbe& probe, Clock now)
    : probe_(probe), now_(std::move(now)) {}

void PanelAppearance::setHost(std::optional<HostProcess> host) {
    host_ = std::move(host);
    lookedAt_.reset();
    seen_.reset();
}

std::optional<Appearance> PanelAppearance::current() {
    if (!host_) {
        return std::nullopt;
    }
    if (isKnownToBeDark(host_->command)) {
        return Appearance::darkAqua;
    }
    const TimePoint now = now_();
    if (!lookedAt_ || now - *lookedAt_ >= kRest) {
        lookedAt_ = now;
        // A panel that hides itself looks the same when it comes back.
        if (const auto seen = probe_.look(host_->pid)) {
            seen_ = seen;
        }
    }
    return seen_;
}

}  // namespace zephrine
