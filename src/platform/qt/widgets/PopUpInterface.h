// SPDX-License-Identifier: MIT
// What assistive technology is told of a pop-up button. Qt's own answer on Linux gives the chosen
// item for the button's name, so that a button would have no name of its own.
#pragma once

#include <QAccessibleWidget>
#include <QComboBox>

namespace zephrine {

class PopUpInterface final : public QAccessibleWidget {
public:
    explicit PopUpInterface(QComboBox& button);

    /// The chosen item is the value, and, for the readers that ask for no value, the description.
    [[nodiscard]] QString text(QAccessible::Text kind) const override;
    [[nodiscard]] QAccessible::State state() const override;

    /// The list of items is the only child.
    [[nodiscard]] int childCount() const override { return 1; }
    [[nodiscard]] QAccessibleInterface* child(int index) const override;
    [[nodiscard]] int indexOfChild(const QAccessibleInterface* child) const override;

    [[nodiscard]] QStringList actionNames() const override;
    void doAction(const QString& name) override;

private:
    [[nodiscard]] QComboBox& button() const { return static_cast<QComboBox&>(*widget()); }
};

}  // namespace zephrine
