// SPDX-License-Identifier: MIT
#include "platform/macos/widgets/MacSegmentedControl.h"

#include <utility>

#include "platform/macos/MacString.h"

namespace zephrine {

namespace {

NSSegmentedControl* makeControl(const std::vector<std::string>& labels) {
    NSMutableArray<NSString*>* titles = [NSMutableArray arrayWithCapacity:labels.size()];
    for (const std::string& label : labels) {
        [titles addObject:nsString(label)];
    }
    return [NSSegmentedControl segmentedControlWithLabels:titles
                                             trackingMode:NSSegmentSwitchTrackingSelectOne
                                                   target:nil
                                                   action:nil];
}

}  // namespace

MacSegmentedControl::MacSegmentedControl(const std::vector<std::string>& labels)
    : MacSegmentedControl(makeControl(labels), [[ZephrineAction alloc] init]) {}

MacSegmentedControl::MacSegmentedControl(NSSegmentedControl* control, ZephrineAction* action)
    : MacView(control), control_(control), action_(action) {
    control_.target = action_;
    control_.action = @selector(runHandler:);
}

void MacSegmentedControl::setSelectedSegment(int index) {
    control_.selectedSegment = index;
}

int MacSegmentedControl::selectedSegment() const {
    return static_cast<int>(control_.selectedSegment);
}

void MacSegmentedControl::setAction(std::function<void()> action) {
    [action_ setHandler:std::move(action)];
}

}  // namespace zephrine
