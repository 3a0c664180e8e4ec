// SPDX-License-Identifier: MIT
// Texts on their way to a panel.
#include "platform/qt/statusitem/bus/BusText.h"

#include "platform/qt/drawing/PlainText.h"
#include "text/SingleLine.h"

namespace zephrine {

QString withoutMarkup(std::string text) {
    std::erase_if(text, [](char c) { return c == '&' || c == '<' || c == '>'; });
    return fromUTF8(singleLine(text));
}

}  // namespace zephrine
