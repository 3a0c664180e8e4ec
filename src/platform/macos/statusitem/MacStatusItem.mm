// SPDX-License-Identifier: MIT
#include "platform/macos/statusitem/MacStatusItem.h"

#include "platform/macos/MacString.h"

namespace zephrine {

MacStatusItem::MacStatusItem(NSStatusItem* item) : item_(item) {
    if (item_.button != nil) {
        button_.emplace(item_.button);
    }
}

MacStatusItem::~MacStatusItem() {
    [NSStatusBar.systemStatusBar removeStatusItem:item_];
}

void MacStatusItem::setAutosaveName(const std::string& name) {
    item_.autosaveName = nsString(name);
}

void MacStatusItem::setLength(double length) {
    item_.length = length;
}

StatusItemButton* MacStatusItem::button() {
    return button_ ? &*button_ : nullptr;
}

}  // namespace zephrine
