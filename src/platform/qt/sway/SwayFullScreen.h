// SPDX-License-Identifier: MIT
// The compositor sway shows windows that it does not manage, as the strip is one, above films and
// games. So the strip has to know of these, of Wayland or of X11, and sway tells.
#pragma once

#include <QList>
#include <QRect>
#include <QSocketNotifier>
#include <QTimer>
#include <functional>
#include <optional>
#include <string>

#include "platform/qt/sway/SwayConnection.h"

namespace zephrine {

class SwayFullScreen {
public:
    /// `socket` is sway's; without it, nothing is ever covered. `changed` is called on the main
    /// thread when something else is.
    SwayFullScreen(std::string socket, std::function<void()> changed);

    /// False when sway has not answered, or has gone: nothing is covered then.
    [[nodiscard]] bool isWatching() const { return readable_.isEnabled(); }

    /// Whether a window that has a whole screen for itself is where `place` is, in pixels.
    [[nodiscard]] bool covers(const QRect& place) const;

private:
    void receive();
    void look();
    void cover(QList<QRect> areas);
    [[nodiscard]] std::optional<QList<QRect>> areasNow() const;

    std::string socket_;
    std::function<void()> changed_;
    SwayConnection events_;
    QSocketNotifier readable_{QSocketNotifier::Read};
    QTimer settled_;
    QList<QRect> areas_;
};

}  // namespace zephrine
