// SPDX-License-Identifier: MIT
// A monitor minus its work area.
#include "platform/qt/statusitem/appearance/DrawnPanel.h"

#include <algorithm>
#include <array>

namespace zephrine {

namespace {

constexpr std::uint32_t kMostPixels = 32767;  // the protocol has no place further away

QRect rectOf(std::span<const std::uint32_t, 4> numbers) {
    std::array<int, 4> pixels{};
    std::transform(numbers.begin(), numbers.end(), pixels.begin(), [](std::uint32_t number) {
        return static_cast<int>(std::min(number, kMostPixels));
    });
    return {pixels[0], pixels[1], pixels[2], pixels[3]};
}

int breadth(const QRect& strip) {
    return std::min(strip.width(), strip.height());
}

QRect broadestStrip(const QRect& monitor, const QRect& area) {
    QRect above = monitor;
    QRect below = monitor;
    QRect left = monitor;
    QRect right = monitor;
    above.setBottom(area.top() - 1);
    below.setTop(area.bottom() + 1);
    left.setRight(area.left() - 1);
    right.setLeft(area.right() + 1);
    return std::max({above, below, left, right}, [](const QRect& one, const QRect& other) {
        return breadth(one) < breadth(other);
    });
}

}  // namespace

std::optional<QRect> drawnPanel(const QRect& monitor, std::span<const std::uint32_t> workAreas) {
    for (; workAreas.size() >= 4; workAreas = workAreas.subspan(4)) {
        const QRect area = rectOf(workAreas.first<4>());
        if (!area.isEmpty() && monitor.contains(area)) {
            const QRect strip = broadestStrip(monitor, area);
            return strip.isEmpty() ? std::nullopt : std::optional(strip);
        }
    }
    return std::nullopt;
}

}  // namespace zephrine
