// SPDX-License-Identifier: MIT
#include "platform/macos/windows/MacWindowFactory.h"

#include "platform/macos/MacString.h"
#include "platform/macos/windows/MacPopover.h"
#include "platform/macos/windows/MacWindow.h"

namespace zephrine {

std::unique_ptr<Popover> MacWindowFactory::makePopover() {
    return std::make_unique<MacPopover>();
}

std::unique_ptr<Window> MacWindowFactory::makeWindow(const std::string& title, Size contentSize) {
    return std::make_unique<MacWindow>(title, contentSize);
}

void MacWindowFactory::runModalAlert(const std::string& messageText,
                                     const std::string& informativeText) {
    NSAlert* alert = [[NSAlert alloc] init];
    alert.messageText = nsString(messageText);
    alert.informativeText = nsString(informativeText);
    // Its default button comes by itself.
    [alert runModal];
}

}  // namespace zephrine
