// SPDX-License-Identifier: MIT
// The application object: the connection to the desktop and its event loop.
//
// Contract. Main thread only. There is at most one, and it exists only while the program runs with
// a user interface; everything that it hands out lives as long as it does.
#pragma once

#include <functional>

#include "platform/LaunchOptions.h"
#include "platform/RunLoop.h"
#include "platform/StatusBar.h"
#include "platform/Vocabulary.h"
#include "platform/Widgets.h"
#include "platform/Windows.h"

namespace zephrine {

class ApplicationDelegate {
public:
    virtual ~ApplicationDelegate() = default;

    /// Called once, when the event loop has started.
    virtual void applicationDidFinishLaunching() = 0;
    /// Called when the running program is opened again. True asks the system to act as well.
    virtual bool applicationShouldHandleReopen(bool hasVisibleWindows) = 0;
    /// Called when the running program is started again with `option`.
    virtual void performLaunchOption(LaunchOption option) = 0;
};

class Application {
public:
    virtual ~Application() = default;

    /// `delegate` must outlive `run`.
    virtual void setDelegate(ApplicationDelegate& delegate) = 0;
    /// No entry in docks or task switchers, no application menu.
    virtual void setAccessoryActivationPolicy() = 0;
    /// Returns when the application was asked to terminate.
    virtual void run() = 0;
    virtual void terminate() = 0;
    /// Brings the application in front of others, so that its next window gets the keyboard.
    virtual void activateIgnoringOtherApps() = 0;

    /// `handler` is called after every wake-up from sleep; never removed.
    virtual void observeDidWake(std::function<void()> handler) = 0;
    /// `handler` is called after every change of the system's appearance; never removed.
    virtual void observeThemeChanged(std::function<void()> handler) = 0;

    [[nodiscard]] virtual const Vocabulary& vocabulary() const = 0;

    virtual RunLoop& runLoop() = 0;
    virtual BackgroundWorker& backgroundWorker() = 0;
    virtual StatusBar& statusBar() = 0;
    virtual const TextMeasure& textMeasure() = 0;
    virtual WidgetFactory& widgets() = 0;
    virtual WindowFactory& windows() = 0;
};

}  // namespace zephrine
