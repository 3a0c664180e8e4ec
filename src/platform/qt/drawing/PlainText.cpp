// SPDX-License-Identifier: MIT
// Plain texts for a toolkit that likes markup.
#include "platform/qt/drawing/PlainText.h"

#include <QTextDocument>

namespace zephrine {

QString fromUTF8(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

namespace {

/// The embeddings, overrides and isolates of the bidirectional algorithm (Unicode, annex 9). They
/// reach beyond the text that they stand in: a name with one would turn the number after it around.
bool turnsOthersAround(QChar character) {
    const char16_t code = character.unicode();
    return (code >= 0x202A && code <= 0x202E) || (code >= 0x2066 && code <= 0x2069);
}

}  // namespace

QString singleLine(QString text) {
    for (QChar& character : text) {
        if (turnsOthersAround(character)) {
            character = QChar::ReplacementCharacter;
        }
        const QChar::Category category = character.category();
        if (category == QChar::Other_Control || category == QChar::Separator_Line ||
            category == QChar::Separator_Paragraph) {
            character = QChar::Space;
        }
    }
    return text;
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
