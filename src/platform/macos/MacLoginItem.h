// SPDX-License-Identifier: MIT
// The registration of the main application with the system's login items.
#pragma once

#include "platform/LoginItem.h"

namespace zephrine {

class MacLoginItem final : public LoginItem {
public:
    [[nodiscard]] LoginItemStatus status() const override;
    [[nodiscard]] std::optional<std::string> registerItem() override;
    [[nodiscard]] std::optional<std::string> unregisterItem() override;
};

}  // namespace zephrine
