// SPDX-License-Identifier: MIT
// Whether the surface behind the item is light or dark. Panels do not follow the applications'
// appearance, and none tells its own, so the panel is looked at on the screen.
#pragma once

#include <chrono>
#include <functional>
#include <optional>

#include "platform/Color.h"
#include "platform/qt/statusitem/host/HostBus.h"

namespace zephrine {

/// Looks at the panels on the screen.
class PanelProbe {
public:
    virtual ~PanelProbe() = default;

    /// How the panel looks; one that belongs to `host` or to the process that started it is
    /// preferred to others. Absent when there is none to be seen.
    [[nodiscard]] virtual std::optional<Appearance> look(std::optional<pid_t> host) = 0;
};

class PanelAppearance {
public:
    using TimePoint = std::chrono::steady_clock::time_point;
    using Clock = std::function<TimePoint()>;

    PanelAppearance(PanelProbe& probe, Clock now);

    /// Absent when no panel shows the item.
    void setHost(std::optional<HostProcess> host);
    /// Absent when it cannot be told. Looks again at most every two seconds.
    [[nodiscard]] std::optional<Appearance> current();

private:
    PanelProbe& probe_;
    Clock now_;
    std::optional<HostProcess> host_;
    std::optional<TimePoint> lookedAt_;
    std::optional<Appearance> seen_;
};

}  // namespace zephrine
