// SPDX-License-Identifier: MIT
// The label of the seam over its Qt widget.
#include "platform/qt/widgets/QtLabel.h"

#include <utility>

#include "platform/qt/drawing/PlainText.h"
#include "platform/qt/widgets/LabelWidget.h"
#include "text/SingleLine.h"

namespace zephrine {

QtLabel::QtLabel(const SystemAppearance& appearance)
    : QtView(std::make_unique<LabelWidget>(appearance)),
      label_(static_cast<LabelWidget&>(widget())) {}

void QtLabel::setStringValue(const std::string& text) {
    if (std::exchange(text_, text) != text) {
        label_.setText(fromUTF8(singleLine(text)));
    }
}

void QtLabel::setFont(const Font& font) {
    label_.setTextFont(font);
}

void QtLabel::setTextColor(Color color) {
    label_.setColor(color);
}

void QtLabel::setAlignment(TextAlignment alignment) {
    label_.setTextAlignment(alignment);
}

void QtLabel::setLineBreakMode(LineBreakMode mode) {
    label_.setLineBreakMode(mode);
}

}  // namespace zephrine
