// SPDX-License-Identifier: MIT
// The few shapes that all controls are painted from.
#pragma once

#include <QColor>
#include <QPainter>
#include <QRectF>
#include <QWidget>

namespace zephrine {

constexpr double controlRadius = 6;

/// A filled box with rounded corners and an edge one pixel wide inside `box`.
void paintBox(QPainter& painter, const QRectF& box, double radius, const QColor& fill,
              const QColor& edge);

/// A ring just inside `box`.
void paintFocusRing(QPainter& painter, const QRectF& box, double radius, const QColor& color);

/// Whether `widget` has the focus and the user is moving it by keyboard: a ring that follows each
/// mouse click would be noise.
bool showsFocus(const QWidget& widget);

}  // namespace zephrine
