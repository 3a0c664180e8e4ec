// SPDX-License-Identifier: MIT
// Geometry of the strip, and its form in the preference file: four whole numbers, the corner of
// which is never 0, so that a missing one shows.
#include "platform/qt/statusitem/strip/StripPlace.h"

#include <algorithm>
#include <cmath>

namespace zephrine {

namespace {

constexpr double kFarthest = 100000;  // pixels; no desktop is that large

using Corner = StripPlace::Corner;

bool isRight(Corner corner) {
    return corner == Corner::topRight || corner == Corner::bottomRight;
}
bool isBottom(Corner corner) {
    return corner == Corner::bottomLeft || corner == Corner::bottomRight;
}

double distance(const QRect& screen, QPoint point) {
    return std::hypot(point.x() - std::clamp(point.x(), screen.left(), screen.right()),
                      point.y() - std::clamp(point.y(), screen.top(), screen.bottom()));
}

/// A whole number between 0 and `most`, whatever is stored.
int wholeNumber(const PreferenceStore& store, const std::string& key, double most) {
    const double value = store.doubleForKey(key);
    return std::isfinite(value) ? static_cast<int>(std::clamp(value, 0.0, most)) : 0;
}

}  // namespace

StripPlace placeOf(const QRect& strip, const QList<QRect>& screens) {
    const auto nearest =
        std::min_element(screens.begin(), screens.end(), [&](const QRect& one, const QRect& other) {
            return distance(one, strip.center()) < distance(other, strip.center());
        });
    const bool right = strip.center().x() > nearest->center().x();
    const bool bottom = strip.center().y() > nearest->center().y();
    const QPoint inset(right ? nearest->right() - strip.right() : strip.left() - nearest->left(),
                       bottom ? nearest->bottom() - strip.bottom() : strip.top() - nearest->top());
    const Corner corner = bottom ? (right ? Corner::bottomRight : Corner::bottomLeft)
                                 : (right ? Corner::topRight : Corner::topLeft);
    return {static_cast<int>(nearest - screens.begin()),
            corner,
            {std::max(inset.x(), 0), std::max(inset.y(), 0)}};
}

QPoint positionOf(const StripPlace& place, QSize size, const QList<QRect>& screens) {
    const QRect screen = screens.value(place.screen, screens.first());
    QRect strip(screen.topLeft() + place.inset, size);
    if (isRight(place.corner)) {
        strip.moveRight(screen.right() - place.inset.x());
    }
    if (isBottom(place.corner)) {
        strip.moveBottom(screen.bottom() - place.inset.y());
    }
    // The upper left corner is the last one to be given up.
    return {std::max(std::min(strip.left(), screen.right() + 1 - size.width()), screen.left()),
            std::max(std::min(strip.top(), screen.bottom() + 1 - size.height()), screen.top())};
}

void savePlace(PreferenceStore& store, const std::string& name, const StripPlace& place) {
    store.setInteger(place.screen, name + "StripScreen");
    store.setInteger(static_cast<int>(place.corner), name + "StripCorner");
    store.setInteger(place.inset.x(), name + "StripX");
    store.setInteger(place.inset.y(), name + "StripY");
}

std::optional<StripPlace> savedPlace(const PreferenceStore& store, const std::string& name) {
    const int corner = wholeNumber(store, name + "StripCorner", kFarthest);
    if (corner < static_cast<int>(Corner::topLeft) ||
        corner > static_cast<int>(Corner::bottomRight)) {
        return std::nullopt;
    }
    return StripPlace{wholeNumber(store, name + "StripScreen", kFarthest),
                      static_cast<Corner>(corner),
                      {wholeNumber(store, name + "StripX", kFarthest),
                       wholeNumber(store, name + "StripY", kFarthest)}};
}

}  // namespace zephrine
