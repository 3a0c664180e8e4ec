// SPDX-License-Identifier: MIT
// The button and how it looks.
#include "platform/qt/widgets/QtButton.h"

#include <QKeyEvent>
#include <QPainter>
#include <QPushButton>
#include <utility>

#include "platform/qt/drawing/Colors.h"
#include "platform/qt/drawing/Fonts.h"
#include "platform/qt/drawing/Palette.h"
#include "platform/qt/drawing/PlainText.h"
#include "platform/qt/widgets/Painting.h"

namespace zephrine {

namespace {

constexpr QMargins bezelInsets{6, 2, 7, 2};

class ButtonWidget final : public QPushButton {
public:
    ButtonWidget(const SystemAppearance& appearance, const QString& title)
        : QPushButton(mnemonicFree(title)), appearance_(appearance), title_(title) {
        setAttribute(Qt::WA_Hover);
    }

protected:
    void paintEvent(QPaintEvent* /*event*/) override {
        const Appearance appearance = appearance_.current();
        const ControlColors colors = controlColors(appearance);
        const QColor fill =
            isDown() ? colors.facePressed : (underMouse() ? colors.faceHover : colors.face);
        const QRectF bezel = rect().marginsRemoved(bezelInsets);
        QPainter painter(this);
        paintBox(painter, bezel, controlRadius, fill, colors.edge);
        if (showsFocus(*this)) {
            paintFocusRing(painter, bezel, controlRadius, colors.focus);
        }
        painter.setFont(makeFont(Font{}));
        painter.setPen(resolve(Color::labelColor, appearance));
        painter.drawText(bezel, Qt::AlignCenter | Qt::TextSingleLine, title_);
    }

    void keyPressEvent(QKeyEvent* event) override {
        if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
            click();
        } else {
            QPushButton::keyPressEvent(event);
        }
    }

private:
    const SystemAppearance& appearance_;
    QString title_;
};

}  // namespace

QtButton::QtButton(const SystemAppearance& appearance, const std::string& title)
    : QtView(std::make_unique<ButtonWidget>(appearance, fromUTF8(title))) {
    QObject::connect(&static_cast<QPushButton&>(widget()), &QPushButton::clicked, &widget(),
                     [this] {
                         const auto action = action_;  // it may destroy the button
                         if (action) {
                             action();
                         }
                     });
}

void QtButton::setAction(std::function<void()> action) {
    action_ = std::move(action);
}

}  // namespace zephrine
