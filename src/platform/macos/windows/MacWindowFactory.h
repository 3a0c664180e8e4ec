// SPDX-License-Identifier: MIT
// Makes AppKit's windows.
#pragma once

#include "platform/Windows.h"

namespace zephrine {

class MacWindowFactory final : public WindowFactory {
public:
    std::unique_ptr<Popover> makePopover() override;
    std::unique_ptr<Window> makeWindow(const std::string& title, Size contentSize) override;
    void runModalAlert(const std::string& messageText, const std::string& informativeText) override;
};

}  // namespace zephrine
