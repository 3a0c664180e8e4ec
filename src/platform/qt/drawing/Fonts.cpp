// SPDX-License-Identifier: MIT
// The choice of families. Qt cannot ask a font for its tabular figures before Qt 6.7, so the
// family for figures is one that has them anyway.
#include "platform/qt/drawing/Fonts.h"

#include <QFontDatabase>
#include <QFontInfo>
#include <QFontMetricsF>
#include <algorithm>
#include <cmath>

namespace zephrine {

namespace {

struct Families {
    QString system;
    QString monospacedDigit;
    QString monospaced;
};

double digitWidth(const QString& family, QChar digit) {
    QFont font(family);
    font.setPixelSize(100);
    font.setWeight(QFont::Medium);
    return QFontMetricsF(font).horizontalAdvance(digit);
}

bool isFixedPitch(const QString& family) {
    return std::abs(digitWidth(family, u'i') - digitWidth(family, u'M')) < 0.01;
}

QString installed(QFontDatabase::SystemFont role) {
    return QFontInfo(QFontDatabase::systemFont(role)).family();
}

QString fixedFamily() {
    const QString preferred = installed(QFontDatabase::FixedFont);
    return isFixedPitch(preferred) ? preferred : QStringLiteral("DejaVu Sans Mono");
}

Families chooseFamilies() {
    Families families;
    families.system = installed(QFontDatabase::GeneralFont);
    families.monospaced = fixedFamily();
    QStringList candidates{families.system};
    for (const auto* name : {u"DejaVu Sans", u"Noto Sans", u"Liberation Sans"}) {
        const auto family = QString::fromUtf16(name);
        if (QFontDatabase::hasFamily(family)) {
            candidates.append(family);
        }
    }
    families.monospacedDigit = familyWithEvenDigits(candidates, digitWidth);
    return families;
}

const QString& familyFor(FontFamily family) {
    static const Families families = chooseFamilies();
    switch (family) {
        case FontFamily::monospacedDigit:
            return families.monospacedDigit;
        case FontFamily::monospaced:
            return families.monospaced;
        case FontFamily::system:
            break;
    }
    return families.system;
}

QFont::Weight weightFor(FontWeight weight) {
    switch (weight) {
        case FontWeight::medium:
            return QFont::Medium;
        case FontWeight::semibold:
            return QFont::DemiBold;
        case FontWeight::regular:
            break;
    }
    return QFont::Normal;
}

}  // namespace

QString familyWithEvenDigits(
    const QStringList& families,
    const std::function<double(const QString& family, QChar digit)>& digitWidth) {
    const auto even = [&](const QString& family) {
        const double first = digitWidth(family, u'0');
        const QString others = QStringLiteral("123456789");
        return std::all_of(others.begin(), others.end(), [&](QChar digit) {
            return std::abs(digitWidth(family, digit) - first) < 0.01;
        });
    };
    const auto found = std::find_if(families.begin(), families.end(), even);
    return found == families.end() ? families.back() : *found;
}

QFont makeFont(const Font& font) {
    QFont result(familyFor(font.family));
    result.setPixelSize(std::max(1, static_cast<int>(std::lround(font.size))));
    result.setWeight(weightFor(font.weight));
    if (font.family == FontFamily::monospaced) {
        result.setStyleHint(QFont::Monospace);
    }
    return result;
}

}  // namespace zephrine
