// SPDX-License-Identifier: MIT
// A window that stays while the user changes from one workspace to another.
#pragma once

#include <QWindow>

namespace zephrine {

/// Asks for `window`, not shown yet, to be on every workspace. To be asked before each showing,
/// since window managers forget it when the window is withdrawn. Does nothing where the display is
/// not X11.
void showOnAllDesktops(QWindow& window);

}  // namespace zephrine
