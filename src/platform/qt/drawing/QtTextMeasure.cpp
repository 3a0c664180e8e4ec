// SPDX-License-Identifier: MIT
// Measuring by the metrics of the font that the drawing context uses.
#include "platform/qt/drawing/QtTextMeasure.h"

#include <QFontMetricsF>

#include "platform/qt/drawing/Fonts.h"
#include "platform/qt/drawing/PlainText.h"
#include "text/SingleLine.h"

namespace zephrine {

Size QtTextMeasure::sizeOfText(std::string_view text, const Font& font) const {
    const QFontMetricsF metrics(makeFont(font));
    return {metrics.horizontalAdvance(fromUTF8(singleLine(text))),
            metrics.ascent() + metrics.descent()};
}

}  // namespace zephrine
