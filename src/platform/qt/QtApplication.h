// SPDX-License-Identifier: MIT
// The connection to the desktop and the event loop, over QApplication.
#pragma once

#include <QApplication>
#include <memory>
#include <string>
#include <variant>
#include <vector>

#include "platform/Application.h"
#include "platform/Platform.h"
#include "platform/PreferenceStore.h"
#include "platform/linux/base/LinuxBackgroundWorker.h"
#include "platform/linux/time/SleepWatcher.h"
#include "platform/qt/DesktopVocabulary.h"
#include "platform/qt/LogindSignal.h"
#include "platform/qt/QtRunLoop.h"
#include "platform/qt/ResumeSignal.h"
#include "platform/qt/SingleInstance.h"
#include "platform/qt/TerminationSignals.h"
#include "platform/qt/drawing/QtTextMeasure.h"
#include "platform/qt/statusitem/QtStatusBar.h"
#include "platform/qt/theme/DesktopTheme.h"
#include "platform/qt/theme/SystemAppearance.h"
#include "platform/qt/widgets/QtWidgetFactory.h"
#include "platform/qt/windows/ClickGuard.h"
#include "platform/qt/windows/QtWindowFactory.h"

namespace zephrine {

class QtApplication final : public Application {
public:
    /// Connects to the desktop, or hands what `arguments` ask for to the instance that runs there.
    /// The path that this program was started by is the first of them. `preferences` outlive the
    /// application, which is never null.
    static std::variant<std::unique_ptr<QtApplication>, NoDesktop, RunsAlready> connect(
        const std::vector<std::string>& arguments, PreferenceStore& preferences);

    void setDelegate(ApplicationDelegate& delegate) override { delegate_ = &delegate; }
    void setAccessoryActivationPolicy() override {}  // every window here keeps out of task bars
    /// Returns at once when another instance was started meanwhile, which then is opened again.
    void run() override;
    void terminate() override;
    void activateIgnoringOtherApps() override {}  // each window asks for itself when it opens

    void observeDidWake(std::function<void()> handler) override;
    void observeThemeChanged(std::function<void()> handler) override;

    const Vocabulary& vocabulary() const override { return desktopVocabulary; }
    RunLoop& runLoop() override { return runLoop_; }
    BackgroundWorker& backgroundWorker() override { return worker_; }
    StatusBar& statusBar() override { return statusBar_; }
    const TextMeasure& textMeasure() override { return textMeasure_; }
    WidgetFactory& widgets() override { return widgets_; }
    WindowFactory& windows() override { return windows_; }

    /// For tests: the appearance that everything here goes by.
    SystemAppearance& appearance() { return appearance_; }

private:
    /// What a start of the program comes with.
    struct Start {
        std::unique_ptr<TerminationSignals> termination;
        std::string program;
        HandedOptions options;
        InstancePlace place;
    };
    QtApplication(Start start, PreferenceStore& preferences);

    void launched();
    void openedAgain(std::optional<LaunchOption> option);

    Start start_;
    std::vector<char*> arguments_;
    int argumentCount_ = 1;
    QApplication application_;
    SystemAppearance appearance_;
    DesktopTheme theme_;
    SleepWatcher sleepWatcher_;
    ResumeSignal resumeSignal_;
    LogindSignal logindSignal_;
    QtRunLoop runLoop_;
    ClickGuard clickGuard_;
    QtTextMeasure textMeasure_;
    QtWidgetFactory widgets_;
    QtWindowFactory windows_;
    QtStatusBar statusBar_;
    SingleInstance instance_;
    LinuxBackgroundWorker worker_{runLoop_};
    ApplicationDelegate* delegate_ = nullptr;
    bool terminated_ = false;
};

}  // namespace zephrine
