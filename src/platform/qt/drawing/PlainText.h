// SPDX-License-Identifier: MIT
// Texts on their way to Qt. They may hold anything (a process chooses its own name), and Qt takes
// some texts for markup: here they become something that shows just its characters.
#pragma once

#include <QString>
#include <string_view>

namespace zephrine {

QString fromUTF8(std::string_view text);

/// The title of a control, in which Qt would take a single ampersand for a keyboard mnemonic.
QString mnemonicFree(const QString& title);

/// What makes Qt show `text` as it stands where it looks for markup: in tool tips and in alerts.
QString shownLiterally(const QString& text);

}  // namespace zephrine
