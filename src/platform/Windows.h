// SPDX-License-Identifier: MIT
// Windows and the popover that hangs from the status item.
//
// Contract. Main thread only. A content view stays its owner's; one view may be handed to several
// hosts and then stands in the one that was given it last.
#pragma once

#include <functional>
#include <memory>
#include <string>

#include "platform/StatusBar.h"
#include "platform/Widgets.h"

namespace zephrine {

/// A panel anchored to the status item. It is transient: a click elsewhere closes it.
class Popover {
public:
    virtual ~Popover() = default;

    virtual void setContentView(View& view) = 0;
    virtual void setContentSize(Size size) = 0;
    /// Called after the popover has closed, however it was closed.
    virtual void setDidCloseHandler(std::function<void()> handler) = 0;

    [[nodiscard]] virtual bool isShown() const = 0;
    /// Opens beside `button`, below it where there is room, above other windows, with the keyboard.
    /// A content view that stands in a window meanwhile is taken out, and returned on closing.
    virtual void showRelativeTo(StatusItemButton& button) = 0;
    /// Closes it as a user would; does nothing when it is not shown.
    virtual void performClose() = 0;
};

/// A titled window that can be closed but neither resized nor minimised. Closing only hides it.
class Window {
public:
    virtual ~Window() = default;

    virtual void setContentView(View& view) = 0;
    [[nodiscard]] virtual bool isVisible() const = 0;
    virtual void center() = 0;
    virtual void makeKeyAndOrderFront() = 0;
};

class WindowFactory {
public:
    virtual ~WindowFactory() = default;

    virtual std::unique_ptr<Popover> makePopover() = 0;
    virtual std::unique_ptr<Window> makeWindow(const std::string& title, Size contentSize) = 0;

    /// Shows an alert with one button and returns once the user has dismissed it. Both texts are
    /// plain.
    virtual void runModalAlert(const std::string& messageText,
                               const std::string& informativeText) = 0;
};

}  // namespace zephrine
