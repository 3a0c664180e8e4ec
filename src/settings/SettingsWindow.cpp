// SPDX-License-Identifier: MIT
#include "app/AppDelegate.h"

namespace zephrine {

void AppDelegate::openSettings() {
    popover->performClose();
}

}  // namespace zephrine
