// SPDX-License-Identifier: MIT
// Wide while that stays legible, centred; else the largest square.
#include "platform/qt/statusitem/tray/TrayLayout.h"

#include <algorithm>
#include <cmath>

namespace zephrine {

namespace {

// Two lines of text of nine points are still read easily at seven eighths of their size, as in a
// tray 21 pixels high.
constexpr double kSmallest = 0.875;

int centred(int length, double part) {
    return static_cast<int>(std::floor((length - part) / 2));
}

}  // namespace

bool isHighEnoughForWide(int height, Size wide, double density) {
    return height / wide.height >= kSmallest * density;
}

TrayLayout layOutInTray(QSize window, Size wide, double density) {
    const double fitting = std::min(window.width() / wide.width, window.height() / wide.height);
    if (fitting >= kSmallest * density) {
        const double scale = std::min(fitting, density);
        return {.isWide = true,
                .scale = scale,
                .corner = {centred(window.width(), std::ceil(wide.width * scale)),
                           centred(window.height(), std::ceil(wide.height * scale))}};
    }
    const int side = std::min(window.width(), window.height());
    return {.side = side,
            .corner = {centred(window.width(), side), centred(window.height(), side)}};
}

}  // namespace zephrine
