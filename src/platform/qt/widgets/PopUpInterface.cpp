// SPDX-License-Identifier: MIT
// See the header.
#include "platform/qt/widgets/PopUpInterface.h"

#include <QAbstractItemView>

namespace zephrine {

PopUpInterface::PopUpInterface(QComboBox& button)
    : QAccessibleWidget(&button, QAccessible::ComboBox) {}

QString PopUpInterface::text(QAccessible::Text kind) const {
    return kind == QAccessible::Value || kind == QAccessible::Description
               ? button().currentText()
               : QAccessibleWidget::text(kind);
}

QAccessible::State PopUpInterface::state() const {
    QAccessible::State state = QAccessibleWidget::state();
    state.hasPopup = true;
    state.expandable = true;
    state.expanded = button().view()->isVisible();
    return state;
}

QAccessibleInterface* PopUpInterface::child(int index) const {
    return index == 0 ? QAccessible::queryAccessibleInterface(button().view()) : nullptr;
}

int PopUpInterface::indexOfChild(const QAccessibleInterface* child) const {
    return child != nullptr && child->object() == button().view() ? 0 : -1;
}

QStringList PopUpInterface::actionNames() const {
    return {pressAction(), showMenuAction()};
}

void PopUpInterface::doAction(const QString& name) {
    if (name == pressAction() && button().view()->isVisible()) {
        button().hidePopup();
    } else if (name == pressAction() || name == showMenuAction()) {
        button().showPopup();
    }
}

}  // namespace zephrine
