// SPDX-License-Identifier: MIT
// The stretch of screen edge that one panel keeps for itself, as it tells the window manager.
#pragma once

namespace zephrine {

/// _NET_WM_STRUT_PARTIAL of the Extended Window Manager Hints, "Strut partial": widths from the
/// edges of the root window, and where along the edge they begin and end (inclusive), in pixels.
struct Strut {
    int left = 0;
    int right = 0;
    int top = 0;
    int bottom = 0;
    int leftStartY = 0;
    int leftEndY = 0;
    int rightStartY = 0;
    int rightEndY = 0;
    int topStartX = 0;
    int topEndX = 0;
    int bottomStartX = 0;
    int bottomEndX = 0;
};

}  // namespace zephrine
