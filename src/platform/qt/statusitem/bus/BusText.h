// SPDX-License-Identifier: MIT
// Panels take texts as markup, some of them badly: a lone ampersand empties the tool tip. What is
// sent to them therefore holds nothing that could be taken as markup.
#pragma once

#include <QString>
#include <string>

namespace zephrine {

/// `text` on one line, without ampersands and angle brackets.
[[nodiscard]] QString withoutMarkup(std::string text);

}  // namespace zephrine
