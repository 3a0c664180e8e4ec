// SPDX-License-Identifier: MIT
// Plain texts for a toolkit that likes markup.
#include "platform/qt/drawing/PlainText.h"

#include <QTextDocument>

namespace zephrine {

QString fromUTF8(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

QString mnemonicFree(const QString& title) {
    return QString(title).replace(u'&', QStringLiteral("&&"));
}

QString shownLiterally(const QString& text) {
    if (!Qt::mightBeRichText(text)) {
        return text;
    }
    return QStringLiteral("<p style='white-space:pre-wrap'>") + text.toHtmlEscaped() +
           QStringLiteral("</p>");
}

}  // namespace zephrine
