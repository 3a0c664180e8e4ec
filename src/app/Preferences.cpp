// SPDX-License-Identifier: MIT
#include "app/Preferences.h"

#include <algorithm>
#include <initializer_list>

namespace zephrine::preferences {

namespace {

double allowedOr(double fallback, double value, std::initializer_list<double> allowed) {
    return std::find(allowed.begin(), allowed.end(), value) != allowed.end() ? value : fallback;
}

}  // namespace

double interval(const PreferenceStore& store) {
    return allowedOr(1.0, store.doubleForKey(refreshIntervalKey), {0.5, 1, 2, 5});
}

double fontSize(const PreferenceStore& store) {
    return allowedOr(9, store.doubleForKey(fontSizeKey), {8, 9, 10});
}

}  // namespace zephrine::preferences
