// SPDX-License-Identifier: MIT
// The check box and how it looks.
#include "platform/qt/widgets/QtCheckBox.h"

#include <QCheckBox>
#include <QKeyEvent>
#include <QPainter>
#include <utility>

#include "platform/qt/drawing/Colors.h"
#include "platform/qt/drawing/Fonts.h"
#include "platform/qt/drawing/Palette.h"
#include "platform/qt/drawing/PlainText.h"
#include "platform/qt/widgets/Painting.h"

namespace zephrine {

namespace {

constexpr int boxSide = 16;
constexpr int titleLeft = boxSide + 6;

class CheckBoxWidget final : public QCheckBox {
public:
    CheckBoxWidget(const SystemAppearance& appearance, const QString& title)
        : QCheckBox(mnemonicFree(title)), appearance_(appearance), title_(title) {
        setAttribute(Qt::WA_Hover);
    }

protected:
    /// The title is part of the target, the empty space behind it too: as wide as its row.
    [[nodiscard]] bool hitButton(const QPoint& point) const override {
        return rect().contains(point);
    }

    /// An arrow would move the keyboard on to a pop-up button, where the next one chooses.
    void keyPressEvent(QKeyEvent* event) override {
        if (isArrow(event->key())) {
            event->ignore();
        } else {
            QCheckBox::keyPressEvent(event);
        }
    }

    void paintEvent(QPaintEvent* /*event*/) override {
        const Appearance appearance = appearance_.current();
        const ControlColors colors = controlColors(appearance);
        const QRectF box(1, (height() - boxSide) / 2.0, boxSide, boxSide);
        constexpr double radius = controlRadius - 2;
        QPainter painter(this);
        if (isChecked()) {
            paintBox(painter, box, radius, colors.focus, colors.focus);
            paintTick(painter, box, windowBackground(appearance));
        } else {
            paintBox(painter, box, radius, underMouse() ? colors.faceHover : colors.face,
                     colors.edge);
        }
        if (showsFocus(*this)) {
            paintFocusRing(painter, box.adjusted(-2, -2, 2, 2), controlRadius, colors.focus);
        }
        painter.setFont(makeFont(Font{}));
        painter.setPen(resolve(Color::labelColor, appearance));
        painter.drawText(rect().adjusted(titleLeft, 0, 0, 0),
                         Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine, title_);
    }

private:
    static bool isArrow(int key) {
        return key == Qt::Key_Left || key == Qt::Key_Up || key == Qt::Key_Right ||
               key == Qt::Key_Down;
    }

    static void paintTick(QPainter& painter, const QRectF& box, const QColor& color) {
        painter.setPen(QPen(color, 2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        const QPointF origin = box.topLeft();
        painter.drawPolyline(QPolygonF(
            {origin + QPointF(4, 8.5), origin + QPointF(7, 11.5), origin + QPointF(12, 5)}));
    }

    const SystemAppearance& appearance_;
    QString title_;
};

}  // namespace

QtCheckBox::QtCheckBox(const SystemAppearance& appearance, const std::string& title)
    : QtView(std::make_unique<CheckBoxWidget>(appearance, fromUTF8(title))) {
    QObject::connect(&static_cast<QCheckBox&>(widget()), &QCheckBox::clicked, &widget(), [this] {
        const auto action = action_;  // it may destroy the check box
        if (action) {
            action();
        }
    });
}

void QtCheckBox::setOn(bool on) {
    static_cast<QCheckBox&>(widget()).setChecked(on);
}

bool QtCheckBox::isOn() const {
    return static_cast<QCheckBox&>(widget()).isChecked();
}

void QtCheckBox::setAction(std::function<void()> action) {
    action_ = std::move(action);
}

}  // namespace zephrine
