// SPDX-License-Identifier: MIT
// Where the status item is on the screen. A status item button that knows implements this beside
// its own interface, and the popover asks for it.
#pragma once

#include <QRect>
#include <optional>

namespace zephrine {

class ItemAnchor {
public:
    virtual ~ItemAnchor() = default;

    /// The item, or the pointer's place at its last click, in global logical coordinates of Qt.
    /// Absent when neither is known.
    [[nodiscard]] virtual std::optional<QRect> anchorRect() const = 0;
};

}  // namespace zephrine
