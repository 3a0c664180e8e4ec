// SPDX-License-Identifier: MIT
// Measures text as `QtDrawingContext` draws it.
#pragma once

#include "platform/Drawing.h"

namespace zephrine {

class QtTextMeasure final : public TextMeasure {
public:
    [[nodiscard]] Size sizeOfText(std::string_view text, const Font& font) const override;
};

}  // namespace zephrine
