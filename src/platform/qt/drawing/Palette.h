// SPDX-License-Identifier: MIT
// The colours of controls, beside the named colours that the program itself asks for.
#pragma once

#include <QColor>
#include <QPalette>

#include "platform/Color.h"

namespace zephrine {

struct ControlColors {
    QColor face;  ///< a button, or the selected one of several segments
    QColor faceHover;
    QColor facePressed;
    QColor track;  ///< what segments lie in
    QColor edge;
    QColor separator;
    QColor focus;
};

ControlColors controlColors(Appearance appearance);

/// For the parts that Qt paints by itself: tool tips, menus, alerts.
QPalette makePalette(Appearance appearance);

}  // namespace zephrine
