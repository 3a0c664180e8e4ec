// SPDX-License-Identifier: MIT
// What a user sees of a widget, read back from Qt and from the pixels: the tables of the windows
// are compared with this, so that nothing depends on what the seam was merely told.
#pragma once

#include <QAccessible>
#include <QLabel>
#include <QWidget>
#include <string>

#include "platform/Geometry.h"

namespace zephrine {

/// The frame inside the parent, counted from the lower left.
inline Rect shownFrame(const QWidget& widget) {
    const QRect box = widget.geometry();
    const int above = widget.parentWidget()->height() - box.y() - box.height();
    return {static_cast<double>(box.x()), static_cast<double>(above),
            static_cast<double>(box.width()), static_cast<double>(box.height())};
}

/// The kind of element that a screen reader announces.
inline QAccessible::Role spokenRole(QWidget& widget) {
    return QAccessible::queryAccessibleInterface(&widget)->role();
}

/// What is painted of `label` when its text is `text`.
inline QImage paintedWith(QLabel& label, const QString& text) {
    const QString before = label.text();
    label.setText(text);
    QImage painted(label.size(), QImage::Format_ARGB32);
    painted.fill(Qt::transparent);
    label.render(&painted, {}, {}, QWidget::DrawChildren);
    label.setText(before);
    return painted;
}

/// The columns of `image` from `top` to `bottom` that hold no ink: (left, right), both counted from
/// their own edge; the width of the image when there is no ink at all.
struct Margins {
    int left;
    int right;
};

inline Margins marginsOfInk(const QImage& image, int top, int bottom) {
    Margins margins{image.width(), image.width()};
    for (int y = top; y < bottom; ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixelColor(x, y).alpha() > 0) {
                margins.left = std::min(margins.left, x);
                margins.right = std::min(margins.right, image.width() - 1 - x);
            }
        }
    }
    return margins;
}

/// The colour of the text: a full block covers some pixels altogether.
inline QColor inkColor(QLabel& label) {
    const QImage painted = paintedWith(label, QStringLiteral("█"));
    QColor ink(Qt::transparent);
    for (int y = 0; y < painted.height(); ++y) {
        for (int x = 0; x < painted.width(); ++x) {
            const QColor pixel = painted.pixelColor(x, y);
            ink = pixel.alpha() > ink.alpha() ? pixel : ink;
        }
    }
    return ink;
}

inline bool standsAtTheRight(QLabel& label) {
    const QImage painted = paintedWith(label, QStringLiteral("█"));
    const Margins margins = marginsOfInk(painted, 0, painted.height());
    return margins.right < margins.left;
}

/// Whether a text that is too long ends in an ellipsis, which has no ink above the middle of the
/// line, where blocks that are cut off have.
inline bool endsInAnEllipsis(QLabel& label) {
    const QImage painted = paintedWith(label, QString(400, u'█'));
    return marginsOfInk(painted, 0, painted.height() / 2).right > 1;
}

}  // namespace zephrine
