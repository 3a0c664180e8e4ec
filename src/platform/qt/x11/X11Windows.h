// SPDX-License-Identifier: MIT
// What window managers and compositors on X11 tell and take, and Qt has no call for. Everywhere
// else these do nothing, or do not know.
#pragma once

#include <QRect>
#include <QSize>
#include <QWidget>
#include <QWindow>
#include <cstdint>
#include <optional>
#include <vector>

#include "platform/qt/x11/Strut.h"

namespace zephrine {

/// Whether windows may be translucent: on X11, whether a compositing manager runs.
bool isComposited();

struct X11Panels {
    QSize root;
    std::vector<Strut> struts;
};

/// The panels of all screens; absent when the display is not X11.
std::optional<X11Panels> x11Panels();

/// Where `window` is, in global logical coordinates: from the X server, where there is one. Qt is
/// wrong about it when a window manager moves its frame only after Qt has asked (Openbox does).
QRect placeOnScreen(const QWidget& window);

/// The same for a window of the X server, `size` device pixels large; absent when it has gone, or
/// when the display is not X11.
std::optional<QRect> placeOnScreen(std::uint32_t window, QSize size);

/// Where a place in global logical coordinates is on the X server, in pixels.
QRect pixelRect(const QRect& place);

/// Asks the window manager for the keyboard as a pager does: such a request is granted also when
/// the click that led to it went to another program, as clicks on a panel do.
void activateAsPager(QWindow& window);

/// Keeps `window`, not shown yet, out of task bars and pagers.
void keepOutOfTaskBar(QWindow& window);

}  // namespace zephrine
