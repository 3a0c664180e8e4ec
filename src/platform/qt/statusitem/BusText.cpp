// SPDX-License-Identifier: MIT
// Texts on their way to a panel.
#include "platform/qt/statusitem/BusText.h"

#include "platform/qt/drawing/PlainText.h"

namespace zephrine {

QString withoutMarkup(QString text) {
    text.removeIf([](QChar c) { return c == u'&' || c == u'<' || c == u'>'; });
    return singleLine(text);
}

}  // namespace zephrine
