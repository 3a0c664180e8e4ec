// SPDX-License-Identifier: MIT
// The item where no panel shows it: a small window of our own above all others, at first at the top
// right of the primary screen, later where the user has dragged it to.
#pragma once

#include <QImage>
#include <QList>
#include <QPoint>
#include <QPushButton>
#include <QRect>
#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "platform/Drawing.h"
#include "platform/PreferenceStore.h"
#include "platform/qt/sway/SwayFullScreen.h"

class QScreen;

namespace zephrine {

/// A button, and no plain widget, so that a screen reader finds one that can be pressed.
class StatusStrip final : public QPushButton {
public:
    explicit StatusStrip(PreferenceStore& preferences);

    /// The place is kept under this name.
    void setPlaceName(const std::string& name);
    /// Points from the left end to the right end.
    void setLength(double length);
    /// Paints only if anything changed. The background fits `appearance`.
    void setPicture(const Image& picture, Appearance appearance);
    /// Whether it is to be there; behind a window over the whole screen it cannot be seen.
    void setShown(bool shown);
    [[nodiscard]] bool isShown() const { return isShown_; }
    /// In global logical coordinates; where it is going to be, until the window manager has put it
    /// there.
    [[nodiscard]] QRect place() const;

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    struct Grip {
        QPoint pointer;
        QPoint window;
    };

    void showOrHide();
    void makeWindow();
    void follow(QScreen* screen);
    void takePlace();
    void fitSize();
    void cutShape();
    void screenChanged();

    PreferenceStore& preferences_;
    std::string placeName_;
    double length_ = 0;
    Image picture_;
    QImage pixels_;  ///< the picture, drawn for the density of the screen
    Appearance appearance_ = Appearance::aqua;
    std::optional<Grip> grip_;
    bool isDragged_ = false;
    bool isShown_ = false;
    std::unique_ptr<SwayFullScreen> fullScreen_;  ///< where that is for us to look after
};

}  // namespace zephrine
