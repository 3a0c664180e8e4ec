// SPDX-License-Identifier: MIT
// Where the status item is on the screen. A status item button that knows implements this beside
// its own interface, and the popover asks for it.
#pragma once

#include <QObject>
#include <QRect>
#include <optional>

namespace zephrine {

class ItemAnchor : public QObject {
    Q_OBJECT

public:
    /// The item, or the pointer's place at its last click, in global logical coordinates of Qt.
    /// Absent when neither is known.
    [[nodiscard]] virtual std::optional<QRect> anchorRect() const = 0;

    /// The item has come to another place by itself: a panel took it, or none has any more.
    Q_SIGNAL void anchorChanged();
};

}  // namespace zephrine
