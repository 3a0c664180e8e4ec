// SPDX-License-Identifier: MIT
// An application without a desktop: launches when run, and a test plays the system's part.
#pragma once

#include <utility>

#include "fakes/CallLog.h"
#include "fakes/FakeDrawing.h"
#include "fakes/FakeRunLoop.h"
#include "fakes/FakeStatusBar.h"
#include "fakes/FakeWidgets.h"
#include "fakes/FakeWindows.h"
#include "platform/Application.h"
#include "platform/macos/MacVocabulary.h"

namespace zephrine {

class FakeApplication : public Application {
public:
    explicit FakeApplication(CallLog log = {}) : calls(std::move(log)) {}

    CallLog calls;
    FakeRunLoop loop{calls};
    FakeBackgroundWorker worker{loop, calls};
    FakeStatusBar bar{calls};
    FakeTextMeasure measure;
    FakeWidgetFactory widgetFactory{calls};
    FakeWindowFactory windowFactory{calls};
    ApplicationDelegate* delegate = nullptr;
    bool isAccessory = false;
    int runs = 0;
    int terminations = 0;
    int activations = 0;
    Vocabulary words = macVocabulary;
    std::function<void()> didWake;
    std::function<void()> themeChanged;

    void setDelegate(ApplicationDelegate& newDelegate) override {
        calls.note("setDelegate");
        delegate = &newDelegate;
    }
    void setAccessoryActivationPolicy() override {
        calls.note("setAccessoryActivationPolicy");
        isAccessory = true;
    }
    void run() override {
        calls.note("run");
        ++runs;
        delegate->applicationDidFinishLaunching();
    }
    void terminate() override {
        calls.note("terminate");
        ++terminations;
    }
    void activateIgnoringOtherApps() override {
        calls.note("activateIgnoringOtherApps");
        ++activations;
    }
    void observeDidWake(std::function<void()> handler) override {
        calls.note("observeDidWake");
        didWake = std::move(handler);
    }
    void observeThemeChanged(std::function<void()> handler) override {
        calls.note("observeThemeChanged");
        themeChanged = std::move(handler);
    }
    const Vocabulary& vocabulary() const override { return words; }
    RunLoop& runLoop() override { return loop; }
    BackgroundWorker& backgroundWorker() override { return worker; }
    StatusBar& statusBar() override { return bar; }
    const TextMeasure& textMeasure() override { return measure; }
    WidgetFactory& widgets() override { return widgetFactory; }
    WindowFactory& windows() override { return windowFactory; }
};

}  // namespace zephrine
