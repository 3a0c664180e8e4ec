// SPDX-License-Identifier: MIT
#include "platform/macos/widgets/MacButton.h"

#include <utility>

#include "platform/macos/MacString.h"

namespace zephrine {

namespace {

NSButton* roundedButton(const std::string& title, ZephrineAction* action) {
    NSButton* button = [NSButton buttonWithTitle:nsString(title)
                                          target:action
                                          action:@selector(runHandler:)];
    button.bezelStyle = NSBezelStyleRounded;
    return button;
}

}  // namespace

MacButton::MacButton(const std::string& title) : MacButton(title, [[ZephrineAction alloc] init]) {}

MacButton::MacButton(const std::string& title, ZephrineAction* action)
    : MacView(roundedButton(title, action)), action_(action) {}

void MacButton::setAction(std::function<void()> action) {
    [action_ setHandler:std::move(action)];
}

}  // namespace zephrine
