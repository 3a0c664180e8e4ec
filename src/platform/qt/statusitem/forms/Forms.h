// SPDX-License-Identifier: MIT
// From a panel's form to the pictures that it is given.
#pragma once

#include "platform/StatusBar.h"
#include "platform/qt/statusitem/HostForm.h"
#include "platform/qt/statusitem/NotifierPixmap.h"

namespace zephrine {

[[nodiscard]] NotifierPixmaps pixmapsForHost(HostForm form, const StatusItemImage& image,
                                             Appearance appearance);

}  // namespace zephrine
