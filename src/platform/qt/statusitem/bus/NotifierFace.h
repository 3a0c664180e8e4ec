// SPDX-License-Identifier: MIT
// What an item shows in a panel: a picture, as pixels or as a file, and perhaps text beside it.
#pragma once

#include <QString>

#include "platform/qt/statusitem/bus/NotifierPixmap.h"

namespace zephrine {

struct NotifierFace {
    NotifierPixmaps pixmaps = {};
    QString iconName = {};  ///< the path of a file; empty where pixels are sent
    QString label = {};     ///< the property XAyatanaLabel that GNOME and Unity added
    bool operator==(const NotifierFace&) const = default;
};

}  // namespace zephrine
