// SPDX-License-Identifier: MIT
#include "platform/macos/widgets/MacPopUpButton.h"

#include <utility>

#include "platform/macos/MacString.h"

namespace zephrine {

namespace {

NSPopUpButton* makePopUp(const std::vector<std::string>& titles) {
    NSPopUpButton* button = [[NSPopUpButton alloc] initWithFrame:NSRect {} pullsDown:NO];
    for (const std::string& title : titles) {
        // Through the menu: the button's own method throws out an earlier item of the same title.
        [button.menu addItemWithTitle:nsString(title) action:nil keyEquivalent:@""];
    }
    if (!titles.empty()) {
        [button selectItemAtIndex:0];
    }
    return button;
}

}  // namespace

MacPopUpButton::MacPopUpButton(const std::vector<std::string>& titles)
    : MacPopUpButton(makePopUp(titles), [[ZephrineAction alloc] init]) {}

MacPopUpButton::MacPopUpButton(NSPopUpButton* button, ZephrineAction* action)
    : MacView(button), button_(button), action_(action) {
    button_.target = action_;
    button_.action = @selector(runHandler:);
}

void MacPopUpButton::selectItem(int index) {
    [button_ selectItemAtIndex:index];
}

int MacPopUpButton::indexOfSelectedItem() const {
    return static_cast<int>(button_.indexOfSelectedItem);
}

void MacPopUpButton::setAction(std::function<void()> action) {
    [action_ setHandler:std::move(action)];
}

}  // namespace zephrine
