// SPDX-License-Identifier: MIT
// A window above all others but those that cover the whole screen, such as films.
#pragma once

#include <QWindow>

namespace zephrine {

/// Asks for `window`, not shown yet, to be below full-screen windows although it stays on top.
/// Where window managers do so by themselves, or the display is not X11, it does nothing.
void stayBelowFullScreen(QWindow& window);

}  // namespace zephrine
