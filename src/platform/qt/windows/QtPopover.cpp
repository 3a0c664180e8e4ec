// SPDX-License-Identifier: MIT
// Opening and closing.
#include "platform/qt/windows/QtPopover.h"

#include <QCursor>
#include <cmath>
#include <optional>
#include <utility>

#include "platform/qt/windows/ItemAnchor.h"
#include "platform/qt/windows/PopoverPlacement.h"
#include "platform/qt/windows/WorkArea.h"

namespace zephrine {

QtPopover::QtPopover(const SystemAppearance& appearance, RunLoop& runLoop, ClickGuard& clickGuard)
    : runLoop_(runLoop),
      clickGuard_(clickGuard),
      frame_(appearance, {.closed = [this] { closed(); },
                          .closedByItself = [this] { clickGuard_.noteAutomaticHide(); }}) {}

void QtPopover::setContentView(View& view) {
    frame_.content().setContent(view);
}

void QtPopover::setContentSize(Size size) {
    frame_.setContentSize(
        {static_cast<int>(std::lround(size.width)), static_cast<int>(std::lround(size.height))});
}

void QtPopover::setDidCloseHandler(std::function<void()> handler) {
    didClose_ = std::move(handler);
}

void QtPopover::showRelativeTo(StatusItemButton& button) {
    if (isShown()) {
        return;
    }
    const auto* anchor = dynamic_cast<const ItemAnchor*>(&button);
    const std::optional<QRect> item = anchor != nullptr ? anchor->anchorRect() : std::nullopt;
    frame_.content().take();
    frame_.open(cornerBeside(item), item.has_value());
    if (anchor != nullptr) {
        following_ = QObject::connect(anchor, &ItemAnchor::anchorChanged, &frame_, [this, anchor] {
            if (const auto place = anchor->anchorRect()) {
                frame_.moveTo(cornerBeside(place));
            }
        });
    }
    // The mouse is held from the first moment at which nobody else holds it. A full interval of
    // tolerance lets the timer fire with others.
    watch_ = runLoop_.scheduleTimer(Seconds(1), Seconds(1), [this] { frame_.holdMouse(); });
}

QPoint QtPopover::cornerBeside(const std::optional<QRect>& item) const {
    const QScreen& screen = screenAt(item ? item->center() : QCursor::pos());
    return placePopover(item, workAreaOf(screen), frame_.panelSize());
}

void QtPopover::closed() {
    QObject::disconnect(following_);
    watch_.reset();
    frame_.content().giveBack();
    if (didClose_) {
        const auto handler = didClose_;
        handler();
    }
}

}  // namespace zephrine
