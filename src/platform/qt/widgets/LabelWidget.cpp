// SPDX-License-Identifier: MIT
// One line, vertically centred in the frame.
#include "platform/qt/widgets/LabelWidget.h"

#include <QFontMetricsF>
#include <QPainter>
#include <algorithm>
#include <cmath>
#include <utility>

#include "platform/qt/drawing/Colors.h"
#include "platform/qt/drawing/Fonts.h"

namespace zephrine {

namespace {

/// `font`, set closer as far as it stays readable, so that `text` fits into `width`.
QFont tightened(QFont font, const QString& text, double width) {
    constexpr double closest = -0.06;  // of the font's size, between two characters
    const double excess = QFontMetricsF(font).horizontalAdvance(text) - width;
    if (excess > 0 && !text.isEmpty()) {
        const double each = -excess / static_cast<double>(text.size());
        font.setLetterSpacing(QFont::AbsoluteSpacing, std::max(each, closest * font.pixelSize()));
    }
    return font;
}

}  // namespace

LabelWidget::LabelWidget(const SystemAppearance& appearance) : appearance_(appearance) {
    setTextFormat(Qt::PlainText);
    setTextInteractionFlags(Qt::NoTextInteraction);
    QLabel::setFont(makeFont(font_));
}

void LabelWidget::setTextFont(const Font& font) {
    if (std::exchange(font_, font) != font) {
        QLabel::setFont(makeFont(font));
    }
}

void LabelWidget::setColor(Color color) {
    if (std::exchange(color_, color) != color) {
        update();
    }
}

void LabelWidget::setTextAlignment(TextAlignment alignment) {
    if (std::exchange(alignment_, alignment) != alignment) {
        update();
    }
}

void LabelWidget::setLineBreakMode(LineBreakMode mode) {
    if (std::exchange(mode_, mode) != mode) {
        update();
    }
}

void LabelWidget::paintEvent(QPaintEvent* /*event*/) {
    QString line = text();
    QFont drawn = font();
    if (mode_ == LineBreakMode::truncatingTail) {
        line = QFontMetricsF(drawn).elidedText(line, Qt::ElideRight, width());
    } else {
        drawn = tightened(drawn, line, width());
    }
    QPainter painter(this);
    painter.setFont(drawn);
    painter.setPen(resolve(color_, appearance_.current()));
    const auto side = alignment_ == TextAlignment::right ? Qt::AlignRight : Qt::AlignLeft;
    painter.drawText(rect(), static_cast<int>(side | Qt::AlignVCenter) | Qt::TextSingleLine, line);
}

}  // namespace zephrine
