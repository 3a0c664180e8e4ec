// SPDX-License-Identifier: MIT
// The item in the system's status bar.
#pragma once

#include <optional>

#include "platform/StatusBar.h"
#include "platform/macos/statusitem/MacStatusItemButton.h"

#import <AppKit/AppKit.h>

namespace zephrine {

class MacStatusItem final : public StatusItem {
public:
    explicit MacStatusItem(NSStatusItem* item);
    ~MacStatusItem() override;
    MacStatusItem(const MacStatusItem&) = delete;
    MacStatusItem& operator=(const MacStatusItem&) = delete;

    void setAutosaveName(const std::string& name) override;
    void setLength(double length) override;
    StatusItemButton* button() override;

private:
    NSStatusItem* item_;
    std::optional<MacStatusItemButton> button_;
};

}  // namespace zephrine
