// SPDX-License-Identifier: MIT
// The system's status bar.
#pragma once

#include "platform/StatusBar.h"

namespace zephrine {

class MacStatusBar final : public StatusBar {
public:
    std::unique_ptr<StatusItem> statusItemWithLength(double length) override;
};

}  // namespace zephrine
