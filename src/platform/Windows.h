// SPDX-License-Identifier: MIT
// Windows and the popover that hangs from the status item.
//
// Contract. Main thread only. A content view stays its owner's, who keeps it for as long as the
// user can open or close its hosts. One view may be handed to several hosts, the popover and
// windows. It stands in the one that was given it last, until another of them is shown: a host that
// is shown takes its content in, out of wherever it stands, and returns it there when it closes, if
// that host still exists and has been given no other view.
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
    /// Called after the popover has closed, however it was closed, and has returned its content.
    virtual void setDidCloseHandler(std::function<void()> handler) = 0;

    [[nodiscard]] virtual bool isShown() const = 0;
    /// Opens beside `button`, below it where there is room, above other windows, with the keyboard.
    /// Does nothing when it is shown already, nor where the system has hidden the item: `isShown`
    /// says so.
    virtual void showRelativeTo(StatusItemButton& button) = 0;
    /// Closes it as a user would; does nothing when it is not shown.
    virtual void performClose() = 0;
};

/// A titled window that can be closed but neither resized nor minimised. Closing only hides it. It
/// is not visible before it is ordered to the front.
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
