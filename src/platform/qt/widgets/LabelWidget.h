// SPDX-License-Identifier: MIT
// The Qt widget of a label: a QLabel, so that it is announced as text, which paints itself. Its
// text is a single line.
#pragma once

#include <QLabel>

#include "platform/Widgets.h"
#include "platform/qt/theme/SystemAppearance.h"

namespace zephrine {

class LabelWidget final : public QLabel {
public:
    explicit LabelWidget(const SystemAppearance& appearance);

    void setTextFont(const Font& font);
    void setColor(Color color);
    void setTextAlignment(TextAlignment alignment);
    void setLineBreakMode(LineBreakMode mode);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    const SystemAppearance& appearance_;
    Font font_;
    Color color_ = Color::labelColor;
    TextAlignment alignment_ = TextAlignment::natural;
    LineBreakMode mode_ = LineBreakMode::clipping;
};

}  // namespace zephrine
