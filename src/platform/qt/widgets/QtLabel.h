// SPDX-License-Identifier: MIT
// A line of plain text. What does not fit is cut with an ellipsis, or, in a label that clips, set
// a little tighter first: families differ in width, and the frames do not.
#pragma once

#include <string>

#include "platform/qt/theme/SystemAppearance.h"
#include "platform/qt/widgets/QtView.h"

namespace zephrine {

class LabelWidget;

class QtLabel final : public QtView, public Label {
public:
    /// `appearance` outlives the label.
    explicit QtLabel(const SystemAppearance& appearance);

    void setStringValue(const std::string& text) override;
    [[nodiscard]] std::string stringValue() const override { return text_; }
    void setFont(const Font& font) override;
    void setTextColor(Color color) override;
    void setAlignment(TextAlignment alignment) override;
    void setLineBreakMode(LineBreakMode mode) override;

private:
    LabelWidget& label_;
    std::string text_;
};

}  // namespace zephrine
