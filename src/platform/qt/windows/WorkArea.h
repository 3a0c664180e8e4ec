// SPDX-License-Identifier: MIT
// The part of a screen that panels leave free. Qt knows it only where there is a single screen.
#pragma once

#include <QRect>
#include <QScreen>
#include <vector>

#include "platform/qt/x11/Strut.h"

namespace zephrine {

/// `screen` without what the panels in `struts` reserve of it; both in pixels of the X root
/// window, which is `root` in size. A strut that would leave next to nothing is not believed.
QRect withoutStruts(const QRect& screen, QSize root, const std::vector<Strut>& struts);

/// In global logical coordinates.
QRect workAreaOf(const QScreen& screen);

/// The screen at `place`, or the one that is nearest.
const QScreen& screenAt(QPoint place);

}  // namespace zephrine
