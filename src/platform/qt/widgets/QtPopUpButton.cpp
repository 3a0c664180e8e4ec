// SPDX-License-Identifier: MIT
// The closed button is painted like the others; the list that it opens is the toolkit's.
#include "platform/qt/widgets/QtPopUpButton.h"

#include <QAccessible>
#include <QComboBox>
#include <QPainter>
#include <QWheelEvent>
#include <utility>

#include "platform/qt/drawing/Colors.h"
#include "platform/qt/drawing/Fonts.h"
#include "platform/qt/drawing/Palette.h"
#include "platform/qt/drawing/PlainText.h"
#include "platform/qt/widgets/Painting.h"

namespace zephrine {

namespace {

constexpr int textMargin = 10;
constexpr double chevronFromRight = 16;

class PopUpWidget final : public QComboBox {
public:
    PopUpWidget(const SystemAppearance& appearance, const std::vector<std::string>& titles)
        : appearance_(appearance) {
        for (const std::string& title : titles) {
            addItem(fromUTF8(title));
        }
        setAttribute(Qt::WA_Hover);
        setFont(makeFont(Font{}));
        setFocusPolicy(Qt::StrongFocus);  // not by the wheel, or the keys that follow would choose
    }

protected:
    void paintEvent(QPaintEvent* /*event*/) override {
        const Appearance appearance = appearance_.current();
        const ControlColors colors = controlColors(appearance);
        const QRectF box(rect());
        QPainter painter(this);
        paintBox(painter, box, controlRadius, underMouse() ? colors.faceHover : colors.face,
                 colors.edge);
        if (showsFocus(*this)) {
            paintFocusRing(painter, box, controlRadius, colors.focus);
        }
        painter.setFont(font());
        painter.setPen(resolve(Color::labelColor, appearance));
        painter.drawText(rect().adjusted(textMargin, 0, -2 * textMargin, 0),
                         Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine, currentText());
        paintChevrons(painter, resolve(Color::secondaryLabelColor, appearance));
    }

    /// A choice takes effect at once, and who turns the wheel over the window has made none.
    void wheelEvent(QWheelEvent* event) override { event->ignore(); }

private:
    /// Up and down: the list opens over the button and the choice may lie either way.
    void paintChevrons(QPainter& painter, const QColor& color) const {
        const QPointF middle(width() - chevronFromRight, height() / 2.0);
        painter.setPen(QPen(color, 1.5, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        for (const double side : {-1.0, 1.0}) {
            painter.drawPolyline(
                QPolygonF({middle + QPointF(-3, 2.5 * side), middle + QPointF(0, 5.5 * side),
                           middle + QPointF(3, 2.5 * side)}));
        }
    }

    const SystemAppearance& appearance_;
};

}  // namespace

QtPopUpButton::QtPopUpButton(const SystemAppearance& appearance,
                             const std::vector<std::string>& titles)
    : QtView(std::make_unique<PopUpWidget>(appearance, titles)) {
    QObject::connect(&static_cast<QComboBox&>(widget()), &QComboBox::currentIndexChanged, &widget(),
                     [this] {
                         QAccessibleEvent event(&widget(), QAccessible::DescriptionChanged);
                         QAccessible::updateAccessibility(&event);
                     });
    QObject::connect(&static_cast<QComboBox&>(widget()), &QComboBox::activated, &widget(), [this] {
        const auto action = action_;  // it may destroy the button
        if (action) {
            action();
        }
    });
}

void QtPopUpButton::selectItem(int index) {
    static_cast<QComboBox&>(widget()).setCurrentIndex(index);
}

int QtPopUpButton::indexOfSelectedItem() const {
    return static_cast<const QComboBox&>(widget()).currentIndex();
}

void QtPopUpButton::setAction(std::function<void()> action) {
    action_ = std::move(action);
}

}  // namespace zephrine
