// SPDX-License-Identifier: MIT
// Where the instances of one desktop session find each other. A user may have several sessions that
// share a bus and a runtime folder; what they do not share is the display.
#pragma once

#include <string>
#include <string_view>

namespace zephrine {

struct InstancePlace {
    std::string display;        ///< empty where nobody sees the windows: every instance is alone
    std::string runtimeFolder;  ///< empty without one that is private to the user

    /// `platform` is the Qt platform plugin that the program connects through.
    static InstancePlace current(std::string_view platform);

    /// Under `sharedBusName`, so that whoever may own that may own this. Empty without a display.
    [[nodiscard]] std::string busName() const;
    /// Empty without a display or a runtime folder.
    [[nodiscard]] std::string socketPath() const;

    /// The program's name for the desktop at large, which knows nothing of displays.
    static constexpr const char* sharedBusName = "org.zephrine.Zephrine";
};

}  // namespace zephrine
