// SPDX-License-Identifier: MIT
// A tool window without a frame of the window manager's. A Qt::Popup would close by itself, but
// not on every kind of display, and assistive technology would not see it.
#include "platform/qt/windows/PopoverFrame.h"

#include <QApplication>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QTimer>
#include <QWindow>
#include <algorithm>
#include <chrono>
#include <utility>

#include "platform/qt/drawing/Colors.h"
#include "platform/qt/drawing/Palette.h"
#include "platform/qt/sway/SwayConnection.h"
#include "platform/qt/widgets/Accessibility.h"
#include "platform/qt/windows/SwayPlacement.h"
#include "platform/qt/x11/X11Windows.h"

namespace zephrine {

namespace {

constexpr int edge = 1;
constexpr int shadow = 14;
constexpr int shadowDrop = 3;
constexpr double radius = 11;
constexpr int fadeTime = 110;  // milliseconds
// A compositor knows a window of the X server only some time after it was shown.
constexpr int kPlacementAttempts = 50;
constexpr std::chrono::milliseconds kPlacementInterval{20};

void paintShadow(QPainter& painter, const QRectF& panel) {
    // Rings of growing size and falling strength; together they look like a blur. The first lie
    // under the panel's edge, which the shadow's drop uncovers at the bottom.
    constexpr int reach = shadow - shadowDrop;
    painter.setBrush(Qt::NoBrush);
    for (int ring = 1 - shadowDrop; ring <= reach; ++ring) {
        const double distance = ring - 0.5;
        const double strength = std::min(1.0, 1 - distance / reach);
        painter.setPen(QPen(QColor(0, 0, 0, static_cast<int>(46 * strength * strength)), 1));
        painter.drawRoundedRect(
            panel.adjusted(-distance, -distance, distance, distance).translated(0, shadowDrop),
            radius + distance, radius + distance);
    }
}

}  // namespace

PopoverFrame::PopoverFrame(const SystemAppearance& appearance, Handlers handlers)
    : QWidget(nullptr, Qt::Tool | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint),
      appearance_(appearance),
      handlers_(std::move(handlers)),
      content_(this) {
    setAccessibleRole(*this, QAccessible::Dialog);
    setWindowTitle(QStringLiteral("Zephrine"));
    fade_.setDuration(fadeTime);
    fade_.setStartValue(0.0);
    fade_.setEndValue(1.0);
    connect(&fade_, &QVariantAnimation::valueChanged, this,
            [this](const QVariant& value) { setWindowOpacity(value.toDouble()); });
}

int PopoverFrame::margin() const {
    return edge + (composited_ ? shadow : 0);
}

QRect PopoverFrame::panel() const {
    return content_.geometry().adjusted(-edge, -edge, edge, edge);
}

void PopoverFrame::setContentSize(QSize size) {
    contentSize_ = size;
    content_.setGeometry(QRect(QPoint(margin(), margin()), size));
    setFixedSize(size + QSize(2 * margin(), 2 * margin()));
}

void PopoverFrame::adopt(bool composited) {
    if (composited != composited_) {
        composited_ = composited;
        destroy();  // a window is translucent from its creation on, or never
        setAttribute(Qt::WA_TranslucentBackground, composited);
    }
    setContentSize(contentSize_);
}

void PopoverFrame::open(QPoint corner, bool isBesideItem) {
    adopt(isComposited());
    besideItem_ = isBesideItem ? std::optional(corner) : std::nullopt;
    move(corner - panel().topLeft());
    setAttribute(Qt::WA_KeyboardFocusChange, false);
    const bool fades = composited_ && !appearance_.reducesMotion();
    setWindowOpacity(fades ? 0.0 : 1.0);
    winId();  // makes the window, so that its properties can be set before it shows
    keepOutOfTaskBar(*windowHandle());
    show();
    raise();
    activateWindow();
    activateAsPager(*windowHandle());
    if (fades) {
        fade_.start();
    }
    placeOnSway(kPlacementAttempts);
    holdMouse();
}

void PopoverFrame::moveTo(QPoint corner) {
    besideItem_ = corner;
    move(corner - panel().topLeft());
    placeOnSway(1);
}

void PopoverFrame::placeOnSway(int attempts) {
    const std::string socket = swaySocket();
    if (socket.empty() || !isVisible() || attempts == 0) {
        return;
    }
    const auto window = static_cast<std::uint32_t>(winId());
    SwayAnswer answer{};
    if (besideItem_) {
        const QRect frame(*besideItem_ - panel().topLeft(), size());
        answer = moveOnSway(socket, window, pixelRect(frame).topLeft());
    } else {
        const double scale = devicePixelRatio();
        const QRect panelPixels(panel().topLeft() * scale, panel().size() * scale);
        answer = moveToPointerOnSway(socket, window, panelPixels);
    }
    if (answer == SwayAnswer::unknownWindow) {
        QTimer::singleShot(kPlacementInterval, this,
                           [this, attempts] { placeOnSway(attempts - 1); });
    }
}

void PopoverFrame::holdMouse() {
    if (windowHandle() != nullptr && isVisible()) {
        windowHandle()->setMouseGrabEnabled(true);
    }
}

void PopoverFrame::dismiss() {
    hiding_ = true;  // hiding takes the activation away: nobody has turned to another window
    hide();
    hiding_ = false;
}

void PopoverFrame::hideByItself() {
    if (isVisible() && !hiding_) {
        handlers_.closedByItself();
        dismiss();
    }
}

bool PopoverFrame::event(QEvent* event) {
    if (event->type() == QEvent::WindowActivate) {
        holdMouse();
    }
    // Lists and menus that open from the panel take the activation, and belong to it.
    if (event->type() == QEvent::WindowDeactivate && QApplication::activePopupWidget() == nullptr) {
        hideByItself();
    }
    return QWidget::event(event);
}

void PopoverFrame::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape) {
        dismiss();
    } else {
        QWidget::keyPressEvent(event);
    }
}

void PopoverFrame::mousePressEvent(QMouseEvent* event) {
    if (!panel().contains(event->position().toPoint())) {
        hideByItself();
    }
}

void PopoverFrame::closeEvent(QCloseEvent* event) {
    event->ignore();
    dismiss();
}

void PopoverFrame::hideEvent(QHideEvent* event) {
    QWidget::hideEvent(event);
    if (!event->spontaneous()) {
        fade_.stop();
        if (windowHandle() != nullptr) {
            windowHandle()->setMouseGrabEnabled(false);
        }
        handlers_.closed();
    }
}

void PopoverFrame::paintEvent(QPaintEvent* event) {
    const Appearance appearance = appearance_.current();
    const QColor background = windowBackground(appearance);
    QPainter painter(this);
    if (!composited_) {
        painter.fillRect(rect(), controlColors(appearance).edge);
        painter.fillRect(content_.geometry(), background);
        return;
    }
    const int corner = static_cast<int>(radius);
    if (panel().adjusted(0, corner, 0, -corner).contains(event->rect()) &&
        content_.geometry().contains(event->rect())) {  // a label that changed, mostly
        painter.fillRect(event->rect(), background);
        return;
    }
    painter.setRenderHint(QPainter::Antialiasing);
    paintShadow(painter, panel());
    painter.setPen(QPen(controlColors(appearance).edge, edge));
    painter.setBrush(background);
    painter.drawRoundedRect(QRectF(panel()).adjusted(0.5, 0.5, -0.5, -0.5), radius, radius);
}

}  // namespace zephrine
