// SPDX-License-Identifier: MIT
// The window of the seam over a top-level widget.
#include "platform/qt/windows/QtWindow.h"

#include <QCursor>
#include <QWindow>
#include <algorithm>
#include <cmath>

#include "platform/qt/Accessibility.h"
#include "platform/qt/drawing/PlainText.h"
#include "platform/qt/windows/WorkArea.h"
#include "platform/qt/windows/X11Windows.h"

namespace zephrine {

namespace {

constexpr auto flags = Qt::Window | Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                       Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint;

}  // namespace

QtWindow::QtWindow(const std::string& title, Size contentSize)
    : surface_(std::make_unique<QWidget>(nullptr, flags)),
      content_(*new ContentHost(surface_.get())) {  // its parent owns it
    const QSize size(static_cast<int>(std::lround(contentSize.width)),
                     static_cast<int>(std::lround(contentSize.height)));
    surface_->setWindowTitle(fromUTF8(title));
    setAccessibleRole(*surface_, QAccessible::Window);
    surface_->setFixedSize(size);
    content_.resize(size);
}

void QtWindow::setContentView(View& view) {
    content_.setContent(view);
}

bool QtWindow::isVisible() const {
    return surface_->isVisible();
}

void QtWindow::center() {
    const QRect area = workAreaOf(screenAt(QCursor::pos()));
    const QSize free = area.size() - surface_->size();
    surface_->move(area.topLeft() +
                   QPoint(std::max(0, free.width() / 2), std::max(0, free.height() / 2)));
}

void QtWindow::makeKeyAndOrderFront() {
    if (!surface_->isVisible()) {
        surface_->winId();  // makes the window, so that its properties can be set before it shows
        keepOutOfTaskBar(*surface_->windowHandle());
    }
    surface_->show();
    surface_->raise();
    surface_->activateWindow();
    activateAsPager(*surface_->windowHandle());
}

}  // namespace zephrine
