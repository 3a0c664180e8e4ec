// SPDX-License-Identifier: MIT
// Qt hands out the windows that it knows as children of the application, each as whatever it says
// it is. Ours is a window only by name: it never gets one on the screen.
#include "platform/qt/statusitem/tray/SpokenTrayItem.h"

#include <QAccessibleActionInterface>
#include <QAccessibleObject>
#include <QGuiApplication>
#include <utility>

namespace zephrine {

namespace {

class ButtonInterface final : public QAccessibleObject, public QAccessibleActionInterface {
public:
    ButtonInterface(QObject& button, const QString& name, const SpokenTrayItem::Item& item)
        : QAccessibleObject(&button), name_(name), item_(item) {}

    [[nodiscard]] QAccessible::Role role() const override { return QAccessible::Button; }
    [[nodiscard]] QAccessible::State state() const override { return {}; }
    [[nodiscard]] QRect rect() const override { return item_.place().value_or(QRect()); }
    [[nodiscard]] QString text(QAccessible::Text kind) const override {
        return kind == QAccessible::Name          ? name_
               : kind == QAccessible::Description ? QStringLiteral("Zephrine")
                                                  : QString();
    }

    [[nodiscard]] QAccessibleInterface* parent() const override {
        return QAccessible::queryAccessibleInterface(qGuiApp);
    }
    [[nodiscard]] int childCount() const override { return 0; }
    [[nodiscard]] QAccessibleInterface* child(int /*index*/) const override { return nullptr; }
    [[nodiscard]] int indexOfChild(const QAccessibleInterface* /*child*/) const override {
        return -1;
    }

    [[nodiscard]] QStringList actionNames() const override { return {pressAction()}; }
    void doAction(const QString& name) override {
        if (name == pressAction()) {
            item_.press();
        }
    }
    [[nodiscard]] QStringList keyBindingsForAction(const QString& /*name*/) const override {
        return {};
    }
    [[nodiscard]] void* interface_cast(QAccessible::InterfaceType type) override {
        return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface*>(this)
                                                    : nullptr;
    }

private:
    const QString& name_;
    const SpokenTrayItem::Item& item_;
};

class ButtonWindow final : public QWindow {
public:
    /// Both outlive it.
    ButtonWindow(const QString& name, const SpokenTrayItem::Item& item) {
        // Qt destroys the interface with its object.
        QAccessible::registerAccessibleInterface(new ButtonInterface(*this, name, item));
    }

    [[nodiscard]] QAccessibleInterface* accessibleRoot() const override {
        return QAccessible::queryAccessibleInterface(const_cast<ButtonWindow*>(this));
    }
};

void tell(QWindow& button, QAccessible::Event news) {
    QAccessibleEvent event(&button, news);
    QAccessible::updateAccessibility(&event);
}

}  // namespace

SpokenTrayItem::SpokenTrayItem(Item item)
    : item_(std::move(item)), isListenedTo_(QAccessible::isActive()) {
    QAccessible::installActivationObserver(this);
}

SpokenTrayItem::~SpokenTrayItem() {
    QAccessible::removeActivationObserver(this);
    setShown(false);
}

void SpokenTrayItem::setName(const QString& name) {
    if (std::exchange(name_, name) != name && button_) {
        tell(*button_, QAccessible::NameChanged);
    }
}

void SpokenTrayItem::setShown(bool shown) {
    isShown_ = shown;
    makeOrEnd();
}

void SpokenTrayItem::accessibilityActiveChanged(bool active) {
    isListenedTo_ = active;
    makeOrEnd();
}

void SpokenTrayItem::makeOrEnd() {
    const bool isThere = isShown_ && isListenedTo_;
    if (isThere == (button_ != nullptr)) {
        return;
    }
    if (isThere) {
        button_ = std::make_unique<ButtonWindow>(name_, item_);
        tell(*button_, QAccessible::ObjectCreated);
    } else {
        tell(*button_, QAccessible::ObjectDestroyed);
        button_.reset();
    }
}

}  // namespace zephrine
