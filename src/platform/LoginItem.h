// SPDX-License-Identifier: MIT
// The registration of this program as something that the system starts when the user signs in.
//
// Contract. Main thread only. The status is read from the system at every call. No display and no
// bus connection is needed.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace zephrine {

/// Raw values are the ones that "--login-status" prints.
enum class LoginItemStatus : std::int32_t {
    notRegistered = 0,
    enabled = 1,
    requiresApproval = 2,  ///< registered, but switched off by the user's own system settings
    notFound = 3,
};

class LoginItem {
public:
    virtual ~LoginItem() = default;

    [[nodiscard]] virtual LoginItemStatus status() const = 0;

    /// Both return what went wrong, in the system's own words; absent when nothing did.
    [[nodiscard]] virtual std::optional<std::string> registerItem() = 0;
    [[nodiscard]] virtual std::optional<std::string> unregisterItem() = 0;
};

}  // namespace zephrine
