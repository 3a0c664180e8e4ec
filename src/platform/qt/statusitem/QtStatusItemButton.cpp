// SPDX-License-Identifier: MIT
// Passes texts and pictures on to where they are seen, and only there.
#include "platform/qt/statusitem/QtStatusItemButton.h"

#include <QCursor>
#include <QGuiApplication>
#include <QScreen>
#include <utility>

#include "platform/qt/drawing/PlainText.h"
#include "platform/qt/statusitem/bus/BusText.h"
#include "platform/qt/statusitem/forms/Forms.h"
#include "platform/qt/x11/X11.h"

namespace zephrine {

namespace {

/// Absent where nobody tells it: a Wayland session hides the pointer from X11 programs.
std::optional<QRect> pointerRect() {
    if (!isOnX11()) {
        return std::nullopt;
    }
    const QPoint pointer = QCursor::pos();
    if (QGuiApplication::screenAt(pointer) == nullptr) {
        return std::nullopt;
    }
    return QRect(pointer, QSize(1, 1));
}

}  // namespace

QtStatusItemButton::QtStatusItemButton(const QDBusConnection& bus,
                                       const StatusItemServices& services)
    : services_(services),
      item_(bus, [this] { panelClicked(); }),
      menu_(bus, {.open = [this] { panelClicked(); },
                  .settings = [this] { performLater(services_.openSettings); },
                  .quit = [this] { performLater(services_.quit); }}),
      files_(pictureFolder()),
      strip_(services.preferences),
      probe_(isOnX11() ? x11Connection() : nullptr),
      panelAppearance_(probe_, [] { return std::chrono::steady_clock::now(); }) {
    connect(&strip_, &QPushButton::clicked, this, [this] { clicked(); });
    connect(&tray_, &TrayItem::clicked, this, [this] { clicked(); });
    connect(&tray_, &TrayItem::placeChanged, this, &ItemAnchor::anchorChanged);
    strip_.setAccessibleDescription("Zephrine");
}

std::optional<Appearance> QtStatusItemButton::effectiveAppearance() {
    auto surface = panelAppearance_.current();
    if (!surface) {
        surface = tray_.surface();  // some trays stand in panels that cannot be found
    }
    return surface.value_or(services_.systemAppearance.current());
}

void QtStatusItemButton::setToolTip(const std::string& text) {
    if (text == toolTip_) {
        return;
    }
    toolTip_ = text;
    const QString plain = withoutMarkup(text);
    item_.setToolTip(plain);
    menu_.setFigures(plain);
    const QString tip = shownLiterally(fromUTF8(text));
    strip_.setToolTip(tip);
    tray_.setToolTip(tip);
}

void QtStatusItemButton::setAccessibilityLabel(const std::string& text) {
    if (text == label_) {
        return;
    }
    label_ = text;
    item_.setAccessibleText(withoutMarkup(text));
    strip_.setAccessibleName(fromUTF8(text));
    tray_.setAccessibilityLabel(fromUTF8(text));
}

void QtStatusItemButton::setImage(StatusItemImage image) {
    image_ = std::move(image);
    show();
}

void QtStatusItemButton::setAction(std::function<void()> action) {
    action_ = std::move(action);
}

std::optional<QRect> QtStatusItemButton::anchorRect() const {
    if (const auto inTray = tray_.place()) {
        return inTray;
    }
    return strip_.isShown() ? std::optional(strip_.place()) : lastClick_;
}

void QtStatusItemButton::setLength(double length) {
    strip_.setLength(length);
    tray_.setLength(length);
}

void QtStatusItemButton::setSurface(ItemSurface surface, const std::optional<HostProcess>& host) {
    surface_ = surface;
    host_ = host;
    item_.setIsInPanel(surface == ItemSurface::panel);
    panelAppearance_.setHost(surface == ItemSurface::panel ? host_
                             // Whose tray it is, nobody says, but the panel may be there as well.
                             : surface == ItemSurface::tray
                                 ? std::optional(host_.value_or(HostProcess()))
                                 : std::nullopt);
    show();
}

void QtStatusItemButton::panelClicked() {
    if (clickIsQueued_) {
        return;
    }
    clickIsQueued_ = true;
    lastClick_ = pointerRect();
    performLater([this] {
        clickIsQueued_ = false;
        clicked();
    });
}

void QtStatusItemButton::performLater(std::function<void()> action) {
    QMetaObject::invokeMethod(
        this, [action = std::move(action)] { action(); }, Qt::QueuedConnection);
}

void QtStatusItemButton::clicked() {
    // A copy: the action may set another one.
    if (const auto action = action_; action && !services_.clickGuard.swallowsClick()) {
        action();
    }
}

void QtStatusItemButton::show() {
    if (surface_ == ItemSurface::panel && host_) {
        item_.setFace(faceForHost(formOfHost(*host_), image_, files_));
    } else if (surface_ != ItemSurface::panel) {
        tray_.setPicture(image_);
    }
    const bool hasStrip = surface_ == ItemSurface::strip && image_.wide.drawingHandler;
    if (hasStrip) {
        strip_.setPicture(image_.wide, image_.appearance);
    }
    if (hasStrip != strip_.isShown()) {
        strip_.setShown(hasStrip);
        Q_EMIT anchorChanged();
    }
}

}  // namespace zephrine
