// SPDX-License-Identifier: MIT
#include "platform/macos/widgets/MacCheckBox.h"

#include <utility>

#include "platform/macos/MacString.h"

namespace zephrine {

MacCheckBox::MacCheckBox(const std::string& title)
    : MacCheckBox([NSButton checkboxWithTitle:nsString(title) target:nil action:nil],
                  [[ZephrineAction alloc] init]) {}

MacCheckBox::MacCheckBox(NSButton* button, ZephrineAction* action)
    : MacView(button), button_(button), action_(action) {
    button_.target = action_;
    button_.action = @selector(runHandler:);
}

void MacCheckBox::setOn(bool on) {
    button_.state = on ? NSControlStateValueOn : NSControlStateValueOff;
}

bool MacCheckBox::isOn() const {
    return button_.state == NSControlStateValueOn;
}

void MacCheckBox::setAction(std::function<void()> action) {
    [action_ setHandler:std::move(action)];
}

}  // namespace zephrine
