// SPDX-License-Identifier: MIT
// The popover's window: its edge, corners and shadow, and every way in which the user can close it.
#pragma once

#include <QVariantAnimation>
#include <QWidget>
#include <functional>

#include "platform/qt/theme/SystemAppearance.h"
#include "platform/qt/windows/ContentHost.h"

namespace zephrine {

class PopoverFrame final : public QWidget {
public:
    struct Handlers {
        std::function<void()> closed;          ///< after it has closed, however that came about
        std::function<void()> closedByItself;  ///< before `closed`, when nobody asked for it
    };

    /// `appearance` outlives the frame.
    PopoverFrame(const SystemAppearance& appearance, Handlers handlers);

    [[nodiscard]] ContentHost& content() { return content_; }
    void setContentSize(QSize size);

    /// The content and its edge, without the shadow.
    [[nodiscard]] QSize panelSize() const { return panel().size(); }
    /// Shows the panel with its upper left corner at `corner`, above other windows. Where that is
    /// not beside the item, since nobody knows where the item is, a compositor that knows where the
    /// pointer is may move it there.
    void open(QPoint corner, bool isBesideItem);
    /// To a corner beside the item.
    void moveTo(QPoint corner);
    /// Hides it because that was asked for.
    void dismiss();
    /// Makes sure that a press anywhere else is noticed. Another program may hold the mouse at
    /// the moment: call it again now and then.
    void holdMouse();

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    [[nodiscard]] int margin() const;
    [[nodiscard]] QRect panel() const;
    void adopt(bool composited);
    void hideByItself();
    void placeOnSway(int attempts);

    const SystemAppearance& appearance_;
    Handlers handlers_;
    ContentHost content_;
    QVariantAnimation fade_;
    QSize contentSize_;
    std::optional<QPoint> besideItem_;  ///< the corner; absent where the item is nobody knows where
    bool composited_ = false;
    bool hiding_ = false;
};

}  // namespace zephrine
