// SPDX-License-Identifier: MIT
// The status bar of the Linux desktop: whatever panel takes items over the session bus, and a strip
// of our own where there is none.
#pragma once

#include <QString>
#include <chrono>
#include <memory>

#include "platform/StatusBar.h"
#include "platform/qt/statusitem/QtStatusItemButton.h"

namespace zephrine {

class QtStatusBar final : public StatusBar {
public:
    /// An empty `busAddress` means the session's bus. The strip appears after `patience` without a
    /// panel.
    explicit QtStatusBar(StatusItemServices services, QString busAddress = {},
                         std::chrono::milliseconds patience = std::chrono::seconds(3));

    std::unique_ptr<StatusItem> statusItemWithLength(double length) override;

private:
    StatusItemServices services_;
    QString busAddress_;
    std::chrono::milliseconds patience_;
};

}  // namespace zephrine
