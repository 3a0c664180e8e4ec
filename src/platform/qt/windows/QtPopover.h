// SPDX-License-Identifier: MIT
// The popover of the seam: puts its window beside the status item and keeps watch over it.
#pragma once

#include <functional>
#include <memory>
#include <optional>

#include "platform/RunLoop.h"
#include "platform/Windows.h"
#include "platform/qt/windows/ClickGuard.h"
#include "platform/qt/windows/PopoverFrame.h"

namespace zephrine {

class QtPopover final : public Popover {
public:
    /// All three outlive the popover.
    QtPopover(const SystemAppearance& appearance, RunLoop& runLoop, ClickGuard& clickGuard);

    void setContentView(View& view) override;
    void setContentSize(Size size) override;
    void setDidCloseHandler(std::function<void()> handler) override;
    [[nodiscard]] bool isShown() const override { return frame_.isVisible(); }
    void showRelativeTo(StatusItemButton& button) override;
    void performClose() override { frame_.dismiss(); }

private:
    [[nodiscard]] QPoint cornerBeside(const std::optional<QRect>& item) const;
    void closed();

    RunLoop& runLoop_;
    ClickGuard& clickGuard_;
    std::function<void()> didClose_;
    std::unique_ptr<Timer> watch_;
    PopoverFrame frame_;
    QMetaObject::Connection following_;
};

}  // namespace zephrine
