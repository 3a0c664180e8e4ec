// SPDX-License-Identifier: MIT
// A controller on a fake machine: what the tests of its operations start from.
#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "app/AppDelegate.h"
#include "fakes/FakePlatform.h"

namespace zephrine {

class ControllerTest : public testing::Test {
protected:
    /// Makes a controller that has not launched yet.
    void prepare(const std::vector<std::string>& options = {}) {
        std::vector<std::string> arguments{"zephrine"};
        arguments.insert(arguments.end(), options.begin(), options.end());
        controller = std::make_shared<AppDelegate>(platform, application(), arguments);
    }
    void launch(const std::vector<std::string>& options = {}) {
        prepare(options);
        controller->applicationDidFinishLaunching();
    }
    CallLog& calls() { return platform.calls; }
    FakeApplication& application() { return platform.application; }
    FakeRunLoop& loop() { return platform.application.loop; }
    FakeBackgroundWorker& worker() { return platform.application.worker; }
    FakeStatusItemButton& button() { return platform.application.bar.button; }
    FakePopover& popover() { return *platform.application.windowFactory.popover; }
    FakeWindow& inspectionWindow() { return *platform.application.windowFactory.windows.back(); }
    std::string text(Label& label) { return label.stringValue(); }
    std::string text(const std::unique_ptr<Label>& label) { return label->stringValue(); }

    /// Lets the capture under way finish and come back to the main thread.
    void finishCapture() {
        worker().release();
        loop().drain();
    }

    FakePlatform platform;
    std::shared_ptr<AppDelegate> controller;
};

}  // namespace zephrine
