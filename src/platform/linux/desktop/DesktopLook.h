// SPDX-License-Identifier: MIT
// How the applications of a desktop look, as far as Zephrine follows them.
#pragma once

#include "platform/Color.h"
#include "platform/linux/desktop/XSettings.h"

namespace zephrine {

struct DesktopLook {
    Appearance appearance = Appearance::aqua;
    bool animates = true;
    bool operator==(const DesktopLook&) const = default;
};

/// Light and animated where the settings do not say.
[[nodiscard]] DesktopLook lookOf(const XSettings& settings);

}  // namespace zephrine
