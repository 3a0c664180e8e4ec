// SPDX-License-Identifier: MIT
// Where the user put the strip: counted from the nearest corner of its screen, so that it stays in
// that corner when the screen changes its size. All lengths are logical pixels of Qt.
#pragma once

#include <QList>
#include <QPoint>
#include <QRect>
#include <QSize>
#include <optional>
#include <string>

#include "platform/PreferenceStore.h"

namespace zephrine {

struct StripPlace {
    enum class Corner { topLeft = 1, topRight, bottomLeft, bottomRight };

    int screen = 0;
    Corner corner = Corner::topRight;
    /// From the screen's corner to the strip's same corner, inwards.
    QPoint inset;
    bool operator==(const StripPlace&) const = default;
};

/// `screens` are the screens' areas, the primary one first; there is at least one.
[[nodiscard]] StripPlace placeOf(const QRect& strip, const QList<QRect>& screens);

/// The upper left corner of a strip of `size`, wholly on a screen.
[[nodiscard]] QPoint positionOf(const StripPlace& place, QSize size, const QList<QRect>& screens);

/// Keeps the place among the preferences, under keys that begin with `name`.
void savePlace(PreferenceStore& store, const std::string& name, const StripPlace& place);
/// Absent when none was kept, or what was kept is none.
[[nodiscard]] std::optional<StripPlace> savedPlace(const PreferenceStore& store,
                                                   const std::string& name);

}  // namespace zephrine
