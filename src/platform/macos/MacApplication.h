// SPDX-License-Identifier: MIT
// The shared application object and everything that hangs from it.
#pragma once

#include <vector>

#include "platform/Application.h"
#include "platform/macos/MacAction.h"
#include "platform/macos/MacApplicationDelegate.h"
#include "platform/macos/MacBackgroundWorker.h"
#include "platform/macos/MacRunLoop.h"
#include "platform/macos/MacVocabulary.h"
#include "platform/macos/drawing/MacDrawing.h"
#include "platform/macos/statusitem/MacStatusBar.h"
#include "platform/macos/widgets/MacWidgetFactory.h"
#include "platform/macos/windows/MacWindowFactory.h"

#import <AppKit/AppKit.h>

namespace zephrine {

class MacApplication final : public Application {
public:
    MacApplication();
    ~MacApplication() override;
    MacApplication(const MacApplication&) = delete;
    MacApplication& operator=(const MacApplication&) = delete;

    void setDelegate(ApplicationDelegate& delegate) override;
    void setAccessoryActivationPolicy() override;
    void run() override;
    /// Ends the process from within `run`, as the system's own Quit does.
    void terminate() override;
    void activateIgnoringOtherApps() override;
    void observeDidWake(std::function<void()> handler) override;
    void observeThemeChanged(std::function<void()> handler) override;
    const Vocabulary& vocabulary() const override { return macVocabulary; }
    RunLoop& runLoop() override { return runLoop_; }
    BackgroundWorker& backgroundWorker() override { return backgroundWorker_; }
    StatusBar& statusBar() override { return statusBar_; }
    const TextMeasure& textMeasure() override { return textMeasure_; }
    WidgetFactory& widgets() override { return widgets_; }
    WindowFactory& windows() override { return windows_; }

private:
    NSApplication* application_;
    ZephrineApplicationDelegate* delegate_;  // the application holds it weakly
    id<NSObject> activity_;
    std::vector<ZephrineAction*> observers_;  // the notification centres hold them weakly
    MacRunLoop runLoop_;
    MacStatusBar statusBar_;
    MacTextMeasure textMeasure_;
    MacWidgetFactory widgets_;
    MacWindowFactory windows_;
    MacBackgroundWorker backgroundWorker_;  // last: its jobs use the others
};

}  // namespace zephrine
