// SPDX-License-Identifier: MIT
// The strip's window, its painting, and dragging it about.
#include "platform/qt/statusitem/strip/StatusStrip.h"

#include <QApplication>
#include <QBitmap>
#include <QMouseEvent>
#include <QPainter>
#include <QScreen>
#include <QWindow>
#include <algorithm>
#include <cmath>
#include <utility>

#include "platform/qt/drawing/Colors.h"
#include "platform/qt/drawing/RenderImage.h"
#include "platform/qt/statusitem/strip/StripPlace.h"
#include "platform/qt/sway/SwayConnection.h"
#include "platform/qt/windows/WorkArea.h"
#include "platform/qt/x11/AllDesktops.h"
#include "platform/qt/x11/BelowFullScreen.h"
#include "platform/qt/x11/X11Windows.h"

namespace zephrine {

namespace {

constexpr int kPadding = 2;  // above and below the picture
constexpr double kRadius = 8;
constexpr QPoint kFirstInset{8, 4};  // from the corner of the work area, where nobody moved it

/// The primary one first.
QList<QRect> screenAreas(QRect (*area)(const QScreen&)) {
    const QScreen* const primary = QGuiApplication::primaryScreen();
    QList<QRect> areas{area(*primary)};
    for (const QScreen* const screen : QGuiApplication::screens()) {
        if (screen != primary) {
            areas.append(area(*screen));
        }
    }
    return areas;
}

QRect wholeArea(const QScreen& screen) {
    return screen.geometry();
}

}  // namespace

StatusStrip::StatusStrip(PreferenceStore& preferences) : preferences_(preferences) {
    setWindowFlags(Qt::Tool | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint |
                   Qt::WindowDoesNotAcceptFocus);
    setAttribute(Qt::WA_ShowWithoutActivating);
    setFocusPolicy(Qt::NoFocus);
    setWindowTitle("Zephrine");
    for (QScreen* const screen : QGuiApplication::screens()) {
        follow(screen);
    }
    connect(qGuiApp, &QGuiApplication::screenAdded, this, &StatusStrip::follow);
    connect(qGuiApp, &QGuiApplication::screenRemoved, this, &StatusStrip::takePlace);
    connect(qGuiApp, &QGuiApplication::primaryScreenChanged, this, &StatusStrip::takePlace);
}

void StatusStrip::setPlaceName(const std::string& name) {
    placeName_ = name;
    takePlace();
}

void StatusStrip::setLength(double length) {
    length_ = length;
    fitSize();
}

void StatusStrip::setPicture(const Image& picture, Appearance appearance) {
    QImage pixels = renderImage(picture, devicePixelRatioF(), appearance);
    if (pixels == pixels_ && appearance == appearance_) {
        return;
    }
    picture_ = picture;
    pixels_ = std::move(pixels);
    appearance_ = appearance;
    fitSize();
    update();
}

void StatusStrip::setShown(bool shown) {
    if (std::exchange(isShown_, shown) == shown) {
        return;
    }
    fullScreen_.reset();
    if (const std::string socket = swaySocket(); shown && !socket.empty()) {
        fullScreen_ = std::make_unique<SwayFullScreen>(socket, [this] { showOrHide(); });
        if (!fullScreen_->isWatching()) {
            fullScreen_.reset();  // the path is left over from another session, mostly
        }
    }
    showOrHide();
}

void StatusStrip::showOrHide() {
    if (isShown_ && !isVisible()) {
        takePlace();
    }
    const bool isCovered = fullScreen_ && fullScreen_->covers(pixelRect(geometry()));
    const bool visible = isShown_ && !isCovered;
    if (visible == isVisible()) {
        return;
    }
    if (visible) {
        makeWindow();
        show();
    } else {
        grip_.reset();
        hide();
        destroy();  // the window's place is off in Qt when it is shown a second time
    }
}

void StatusStrip::makeWindow() {
    // sway makes windows larger that it manages, and puts them into the middle of the screen.
    setWindowFlag(Qt::BypassWindowManagerHint, fullScreen_ != nullptr);
    setAttribute(Qt::WA_TranslucentBackground, isComposited());
    cutShape();
    winId();  // makes the window, which window managers look at when it appears
    keepOutOfTaskBar(*windowHandle());
    showOnAllDesktops(*windowHandle());
    stayBelowFullScreen(*windowHandle());
    connect(windowHandle(), &QWindow::screenChanged, this, &StatusStrip::screenChanged);
}

QRect StatusStrip::place() const {
    const bool isThere = windowHandle() != nullptr && windowHandle()->isExposed();
    return isThere ? placeOnScreen(*this) : geometry();
}

void StatusStrip::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QColor border = resolve(Color::quaternaryLabelColor, appearance_);
    if (!testAttribute(Qt::WA_TranslucentBackground)) {
        painter.fillRect(rect(), border);  // what the shape leaves of the corners
    }
    painter.setPen(border);
    painter.setBrush(windowBackground(appearance_));
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), kRadius, kRadius);
    painter.drawImage(QPointF((width() - picture_.size.width) / 2, kPadding), pixels_);
}

void StatusStrip::resizeEvent(QResizeEvent* event) {
    QPushButton::resizeEvent(event);
    cutShape();
}

/// Shaped where nothing composes windows, since a translucent one has black corners there.
void StatusStrip::cutShape() {
    clearMask();  // Qt sends no shape that it has sent before, though in pixels it is another one
    if (testAttribute(Qt::WA_TranslucentBackground)) {
        return;
    }
    QBitmap shape(size());
    shape.clear();
    QPainter painter(&shape);
    painter.setBrush(Qt::color1);
    painter.setPen(Qt::color1);
    painter.drawRoundedRect(rect().adjusted(0, 0, -1, -1), kRadius, kRadius);
    painter.end();
    setMask(shape);
}

/// The user has dragged it to a screen that may have another density.
void StatusStrip::screenChanged() {
    cutShape();
    pixels_ = renderImage(picture_, devicePixelRatioF(), appearance_);
    update();
}

void StatusStrip::mousePressEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton) {
        grip_ = Grip{event->globalPosition().toPoint(), place().topLeft()};
        isDragged_ = false;
    }
}

void StatusStrip::mouseMoveEvent(QMouseEvent* event) {
    if (!grip_) {
        return;
    }
    const QPoint moved = event->globalPosition().toPoint() - grip_->pointer;
    isDragged_ = isDragged_ || moved.manhattanLength() >= QApplication::startDragDistance();
    if (isDragged_) {
        move(grip_->window + moved);
    }
}

void StatusStrip::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton || !grip_) {
        return;
    }
    grip_.reset();
    if (isDragged_) {
        savePlace(preferences_, placeName_, placeOf(geometry(), screenAreas(wholeArea)));
        takePlace();
    } else if (rect().contains(event->position().toPoint())) {
        click();
    }
}

void StatusStrip::follow(QScreen* screen) {
    connect(screen, &QScreen::geometryChanged, this, &StatusStrip::takePlace);
    connect(screen, &QScreen::availableGeometryChanged, this, &StatusStrip::takePlace);
}

void StatusStrip::takePlace() {
    if (grip_ || QGuiApplication::primaryScreen() == nullptr) {
        return;
    }
    if (const auto saved = savedPlace(preferences_, placeName_)) {
        move(positionOf(*saved, size(), screenAreas(wholeArea)));
    } else {
        move(positionOf({0, StripPlace::Corner::topRight, kFirstInset}, size(),
                        screenAreas(workAreaOf)));
    }
}

void StatusStrip::fitSize() {
    const QSize fitting(static_cast<int>(std::ceil(std::max(length_, picture_.size.width))),
                        static_cast<int>(std::ceil(picture_.size.height)) + 2 * kPadding);
    if (fitting != size()) {
        setFixedSize(fitting);
        takePlace();
    }
}

}  // namespace zephrine
