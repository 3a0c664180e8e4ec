// SPDX-License-Identifier: MIT
// Plain geometry of the seam. All lengths are points (logical pixels); the origin is the lower
// left and y grows upwards. A back end whose toolkit counts downwards flips once, in one place.
#pragma once

namespace zephrine {

struct Point {
    double x = 0;
    double y = 0;
    bool operator==(const Point&) const = default;
};

struct Size {
    double width = 0;
    double height = 0;
    bool operator==(const Size&) const = default;
};

struct Rect {
    double x = 0;
    double y = 0;
    double width = 0;
    double height = 0;
    [[nodiscard]] Size size() const { return {width, height}; }
    bool operator==(const Rect&) const = default;
};

}  // namespace zephrine
