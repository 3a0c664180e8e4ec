// SPDX-License-Identifier: MIT
// Neutral controls on the window background, in both appearances.
#include "platform/qt/drawing/Palette.h"

#include "platform/qt/drawing/Colors.h"

namespace zephrine {

ControlColors controlColors(Appearance appearance) {
    const QColor focus = resolve(Color::systemBlueColor, appearance);
    if (appearance == Appearance::darkAqua) {
        return {.face = QColor::fromRgb(0xFF3C3C43),
                .faceHover = QColor::fromRgb(0xFF47474F),
                .facePressed = QColor::fromRgb(0xFF34343A),
                .track = QColor::fromRgb(0xFF2A2A2F),
                .edge = QColor::fromRgb(0xFF505058),
                .separator = QColor::fromRgb(0xFF3A3A40),
                .focus = focus};
    }
    return {.face = QColor::fromRgb(0xFFFFFFFF),
            .faceHover = QColor::fromRgb(0xFFF1F1F4),
            .facePressed = QColor::fromRgb(0xFFE6E6EA),
            .track = QColor::fromRgb(0xFFE9E9ED),
            .edge = QColor::fromRgb(0xFFCDCDD4),
            .separator = QColor::fromRgb(0xFFDCDCE1),
            .focus = focus};
}

QPalette makePalette(Appearance appearance) {
    const ControlColors colors = controlColors(appearance);
    const QColor text = resolve(Color::labelColor, appearance);
    const QColor faint = resolve(Color::secondaryLabelColor, appearance);
    const QColor background = windowBackground(appearance);
    QPalette palette(text, colors.face, colors.faceHover, colors.edge, colors.separator, text, text,
                     background, background);
    palette.setColor(QPalette::Highlight, colors.focus);
    palette.setColor(QPalette::HighlightedText,
                     appearance == Appearance::darkAqua ? QColor(Qt::black) : QColor(Qt::white));
    palette.setColor(QPalette::ToolTipBase, colors.face);
    palette.setColor(QPalette::ToolTipText, text);
    palette.setColor(QPalette::PlaceholderText, faint);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        palette.setColor(QPalette::Disabled, role, faint);
    }
    return palette;
}

}  // namespace zephrine
