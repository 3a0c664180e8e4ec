// SPDX-License-Identifier: MIT
// Makes the windows of this back end.
#pragma once

#include "platform/RunLoop.h"
#include "platform/Windows.h"
#include "platform/qt/theme/SystemAppearance.h"
#include "platform/qt/windows/ClickGuard.h"

namespace zephrine {

class QtWindowFactory final : public WindowFactory {
public:
    /// All three outlive the factory and all that it makes.
    QtWindowFactory(const SystemAppearance& appearance, RunLoop& runLoop, ClickGuard& clickGuard)
        : appearance_(appearance), runLoop_(runLoop), clickGuard_(clickGuard) {}

    std::unique_ptr<Popover> makePopover() override;
    std::unique_ptr<Window> makeWindow(const std::string& title, Size contentSize) override;
    void runModalAlert(const std::string& messageText, const std::string& informativeText) override;

private:
    const SystemAppearance& appearance_;
    RunLoop& runLoop_;
    ClickGuard& clickGuard_;
};

}  // namespace zephrine
