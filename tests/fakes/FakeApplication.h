// SPDX-License-Identifier: MIT
// An application without a desktop: launches when run, and a test plays the system's part.
#pragma once

#include <utility>

#include "fakes/FakeDrawing.h"
#include "fakes/FakeRunLoop.h"
#include "fakes/FakeStatusBar.h"
#include "fakes/FakeWidgets.h"
#include "fakes/FakeWindows.h"
#include "platform/Application.h"

namespace zephrine {

class FakeApplication : public Application {
public:
    FakeRunLoop loop;
    FakeBackgroundWorker worker{loop};
    FakeStatusBar bar;
    FakeTextMeasure measure;
    FakeWidgetFactory widgetFactory;
    FakeWindowFactory windowFactory;
    ApplicationDelegate* delegate = nullptr;
    bool isAccessory = false;
    int runs = 0;
    int terminations = 0;
    int activations = 0;
    std::function<void()> didWake;
    std::function<void()> themeChanged;

    void setDelegate(ApplicationDelegate& newDelegate) override { delegate = &newDelegate; }
    void setAccessoryActivationPolicy() override { isAccessory = true; }
    void run() override {
        ++runs;
        delegate->applicationDidFinishLaunching();
    }
    void terminate() override { ++terminations; }
    void activateIgnoringOtherApps() override { ++activations; }
    void observeDidWake(std::function<void()> handler) override { didWake = std::move(handler); }
    void observeThemeChanged(std::function<void()> handler) override {
        themeChanged = std::move(handler);
    }
    RunLoop& runLoop() override { return loop; }
    BackgroundWorker& backgroundWorker() override { return worker; }
    StatusBar& statusBar() override { return bar; }
    const TextMeasure& textMeasure() override { return measure; }
    WidgetFactory& widgets() override { return widgetFactory; }
    WindowFactory& windows() override { return windowFactory; }
};

}  // namespace zephrine
