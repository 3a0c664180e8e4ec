// SPDX-License-Identifier: MIT
// A factory of accessible interfaces that goes by a property of the widget.
#include "platform/qt/widgets/Accessibility.h"

#include <QAccessibleWidget>
#include <QVariant>

#include "platform/qt/widgets/PopUpInterface.h"

namespace zephrine {

namespace {

constexpr const char* roleProperty = "accessibleRole";

class RoleInterface final : public QAccessibleWidget {
public:
    using QAccessibleWidget::QAccessibleWidget;

    /// The value of a picture is a text. Few readers ask for that, so that the widget's
    /// description, which all of them read, has the same words.
    [[nodiscard]] QString text(QAccessible::Text kind) const override {
        return kind == QAccessible::Value ? widget()->accessibleDescription()
                                          : QAccessibleWidget::text(kind);
    }
};

QAccessibleInterface* makeInterface(const QString& /*className*/, QObject* object) {
    if (auto* button = qobject_cast<QComboBox*>(object)) {
        return new PopUpInterface(*button);
    }
    auto* widget = qobject_cast<QWidget*>(object);
    const QVariant role = widget != nullptr ? widget->property(roleProperty) : QVariant();
    // Qt takes the result over: see QAccessible::queryAccessibleInterface.
    return role.isValid() ? new RoleInterface(widget, static_cast<QAccessible::Role>(role.toInt()))
                          : nullptr;
}

}  // namespace

void installAccessibility() {
    QAccessible::installFactory(makeInterface);
}

void setAccessibleRole(QWidget& widget, QAccessible::Role role) {
    widget.setProperty(roleProperty, static_cast<int>(role));
}

}  // namespace zephrine
