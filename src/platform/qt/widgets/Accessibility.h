// SPDX-License-Identifier: MIT
// What assistive technology is told of widgets that Qt has no kind for. A widget that is not made
// known here reads as what its Qt class says.
#pragma once

#include <QAccessible>
#include <QWidget>

namespace zephrine {

/// Once, after the application object is made.
void installAccessibility();

/// `widget` reads as `role` from now on.
void setAccessibleRole(QWidget& widget, QAccessible::Role role);

}  // namespace zephrine
