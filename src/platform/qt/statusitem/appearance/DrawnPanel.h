// SPDX-License-Identifier: MIT
// Some desktops draw their panel themselves, without a window for it. What tells where it is, is
// the work area: the part of each monitor that they leave to windows.
#pragma once

#include <QRect>
#include <cstdint>
#include <optional>
#include <span>

namespace zephrine {

/// The broadest strip between an edge of `monitor` and the work area on it. `workAreas` are x, y,
/// width and height of one after another; absent when none of them is on the monitor, or when it
/// leaves no strip. All in pixels of the X server.
[[nodiscard]] std::optional<QRect> drawnPanel(const QRect& monitor,
                                              std::span<const std::uint32_t> workAreas);

}  // namespace zephrine
