// SPDX-License-Identifier: MIT
// The window of the seam over a top-level widget.
#include "platform/qt/windows/QtWindow.h"

#include <QCursor>
#include <QHideEvent>
#include <QWindow>
#include <algorithm>
#include <cmath>

#include "platform/qt/drawing/PlainText.h"
#include "platform/qt/widgets/Accessibility.h"
#include "platform/qt/windows/ContentHost.h"
#include "platform/qt/windows/WorkArea.h"
#include "platform/qt/x11/X11Windows.h"

namespace zephrine {

namespace {

constexpr auto flags = Qt::Window | Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                       Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint;

}  // namespace

/// The window itself, however it comes to be hidden.
class QtWindow::Surface final : public QWidget {
public:
    Surface() : QWidget(nullptr, flags), content(this) {}

    ContentHost content;

protected:
    void hideEvent(QHideEvent* event) override {
        QWidget::hideEvent(event);
        if (!event->spontaneous()) {
            content.giveBack();
        }
    }
};

QtWindow::QtWindow(const std::string& title, Size contentSize)
    : surface_(std::make_unique<Surface>()) {
    const QSize size(static_cast<int>(std::lround(contentSize.width)),
                     static_cast<int>(std::lround(contentSize.height)));
    setAccessibleRole(*surface_, QAccessible::Window);
    surface_->setWindowTitle(fromUTF8(title));
    surface_->setFixedSize(size);
    surface_->content.resize(size);
}

QtWindow::~QtWindow() = default;

void QtWindow::setContentView(View& view) {
    surface_->content.setContent(view);
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
    surface_->content.take();
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
