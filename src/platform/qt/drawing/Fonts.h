// SPDX-License-Identifier: MIT
// Fonts by role, as installed fonts. A size is a count of logical pixels, so that a text is as
// large as the frame that was drawn up for it, whatever resolution the display claims.
#pragma once

#include <QFont>
#include <QString>
#include <QStringList>
#include <functional>

#include "platform/Font.h"

namespace zephrine {

/// Needs the application object. The families are looked up once; sizes become whole pixels,
/// at least 1.
QFont makeFont(const Font& font);

/// The first of `families` whose ten digits are equally wide by `digitWidth`; the last when none.
/// `families` is not empty.
QString familyWithEvenDigits(
    const QStringList& families,
    const std::function<double(const QString& family, QChar digit)>& digitWidth);

}  // namespace zephrine
