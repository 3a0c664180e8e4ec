// SPDX-License-Identifier: MIT
// Texts on their way to Qt. They may hold anything (a process chooses its own name), and Qt takes
// some texts for markup: here they become one line, or a tool tip, that shows just its characters.
#pragma once

#include <QString>
#include <string_view>

namespace zephrine {

QString fromUTF8(std::string_view text);

/// `text` on one line, in the order in which it is written: every control character and line or
/// paragraph separator is a space, and what would turn the order of others around shows as U+FFFD.
QString singleLine(QString text);

/// The title of a control, in which Qt would take a single ampersand for a keyboard mnemonic.
QString mnemonicFree(const QString& title);

/// What makes Qt show `text` as it stands where it looks for markup: in tool tips and in alerts.
QString shownLiterally(const QString& text);

}  // namespace zephrine
