// SPDX-License-Identifier: MIT
#include "platform/macos/statusitem/MacStatusBar.h"

#include "platform/macos/statusitem/MacStatusItem.h"

namespace zephrine {

std::unique_ptr<StatusItem> MacStatusBar::statusItemWithLength(double length) {
    NSStatusItem* item = [NSStatusBar.systemStatusBar statusItemWithLength:length];
    return item != nil ? std::make_unique<MacStatusItem>(item) : nullptr;
}

}  // namespace zephrine
