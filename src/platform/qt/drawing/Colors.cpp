// SPDX-License-Identifier: MIT
// The palette. Every colour that texts use has a contrast of at least 4.5 : 1 against the window
// background (WCAG 2.1, success criterion 1.4.3); only the graph's grid is meant to stay faint.
#include "platform/qt/drawing/Colors.h"

namespace zephrine {

namespace {

QRgb inLight(Color color) {
    switch (color) {
        case Color::white:
            return 0xFFFFFFFF;
        case Color::black:
            return 0xFF000000;
        case Color::labelColor:
            return 0xFF1D1D20;
        case Color::secondaryLabelColor:
            return 0xFF66666D;
        case Color::quaternaryLabelColor:
            return 0xFFC9C9CF;
        case Color::systemBlueColor:
            return 0xFF0A63D6;
        case Color::systemGreenColor:
            return 0xFF1B7A3A;
        case Color::systemOrangeColor:
            return 0xFFAD5200;
        case Color::systemPurpleColor:
            return 0xFF8A3FC4;
        case Color::systemRedColor:
            return 0xFFC7242F;
    }
    return 0xFF000000;
}

QRgb inDark(Color color) {
    switch (color) {
        case Color::white:
            return 0xFFFFFFFF;
        case Color::black:
            return 0xFF000000;
        case Color::labelColor:
            return 0xFFF1F1F4;
        case Color::secondaryLabelColor:
            return 0xFFA6A6AE;
        case Color::quaternaryLabelColor:
            return 0xFF48484E;
        case Color::systemBlueColor:
            return 0xFF57A5FF;
        case Color::systemGreenColor:
            return 0xFF37CF5E;
        case Color::systemOrangeColor:
            return 0xFFFFA033;
        case Color::systemPurpleColor:
            return 0xFFC88BFA;
        case Color::systemRedColor:
            return 0xFFFF6E66;
    }
    return 0xFFFFFFFF;
}

}  // namespace

QColor resolve(Color color, Appearance appearance) {
    return QColor::fromRgb(appearance == Appearance::darkAqua ? inDark(color) : inLight(color));
}

QColor windowBackground(Appearance appearance) {
    return QColor::fromRgb(appearance == Appearance::darkAqua ? 0xFF1F1F23 : 0xFFF7F7F9);
}

}  // namespace zephrine
