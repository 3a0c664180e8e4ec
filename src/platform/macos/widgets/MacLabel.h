// SPDX-License-Identifier: MIT
// A text field of the label kind: never edited or selected, always plain text.
#pragma once

#include "platform/macos/widgets/MacView.h"

namespace zephrine {

class MacLabel final : public MacView, public Label {
public:
    explicit MacLabel(const std::string& text);

    void setStringValue(const std::string& text) override;
    [[nodiscard]] std::string stringValue() const override;
    void setFont(const Font& font) override;
    void setTextColor(Color color) override;
    void setAlignment(TextAlignment alignment) override;
    void setLineBreakMode(LineBreakMode mode) override;

private:
    MacLabel(NSTextField* field, const std::string& text);

    NSTextField* field_;
    std::string text_;  ///< as it was set, whether or not it can be shown
};

}  // namespace zephrine
