// SPDX-License-Identifier: MIT
// What assistive technology is told of the item in a tray: a button beside the program's windows.
// Qt tells of windows and widgets of its own only, and the item's window in a tray is neither.
#pragma once

#include <QAccessible>
#include <QRect>
#include <QString>
#include <QWindow>
#include <functional>
#include <memory>
#include <optional>

namespace zephrine {

class SpokenTrayItem final : QAccessible::ActivationObserver {
public:
    struct Item {
        /// In global logical coordinates; absent where it cannot be told.
        std::function<std::optional<QRect>()> place;
        /// Called in the middle of a request by assistive technology, which waits for the answer.
        std::function<void()> press;
    };

    explicit SpokenTrayItem(Item item);
    ~SpokenTrayItem() override;
    Q_DISABLE_COPY_MOVE(SpokenTrayItem)

    void setName(const QString& name);
    /// Whether there is an item in a tray; there is none at first.
    void setShown(bool shown);

private:
    void accessibilityActiveChanged(bool active) override;
    void makeOrEnd();

    const Item item_;
    QString name_;
    bool isShown_ = false;
    bool isListenedTo_;                ///< by assistive technology
    std::unique_ptr<QWindow> button_;  ///< only while it is shown and listened to
};

}  // namespace zephrine
