// SPDX-License-Identifier: MIT
// The one application controller. It owns every long-lived object, runs the refresh cycle and
// answers to the user. Each group of its operations is defined in the folder that it belongs to.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "dashboard/Dashboard.h"
#include "platform/MainThread.h"
#include "platform/Platform.h"
#include "processes/ProcessRefresh.h"
#include "sampling/History.h"
#include "sampling/Sampler.h"
#include "settings/SettingsWindow.h"

namespace zephrine {

/// Main thread only, like everything that it calls except the capture of processes; what draws the
/// item, writes preferences or opens a window ends the process on any other thread. Held by
/// std::shared_ptr, so that work which comes back late can tell whether it still exists. The state
/// is public: it is the table by which the subsystems share one set of facts, and what tests read.
class AppDelegate final : public ApplicationDelegate,
                          public std::enable_shared_from_this<AppDelegate> {
public:
    /// `arguments` are the program's, its own path first. The platform and the application must
    /// outlive the controller.
    AppDelegate(Platform& platform, Application& application, std::vector<std::string> arguments);

    // Launch, refresh, wake-up, appearance: AppDelegate.cpp
    void applicationDidFinishLaunching() override;
    void performLaunchOption(LaunchOption option) override;
    void resetTimer();
    void refresh();
    void wokeUp();
    void themeChanged();
    [[nodiscard]] double interval() const;
    [[nodiscard]] double fontSize() const;

    // The dashboard's two hosts: PanelPresentation.cpp
    void toggleDashboard();
    void showDashboard();
    bool applicationShouldHandleReopen(bool hasVisibleWindows) override;
    void popoverDidClose();
    void openInspectionWindow();
    [[nodiscard]] bool isDashboardVisible() const;

    // The status item: statusitem/UpdateStatusItem.cpp
    void updateStatusItem();

    // The settings window: settings/SettingsWindow.cpp
    void openSettings();
    void ramChanged(const PopUpButton& sender);
    void fontChanged(const PopUpButton& sender);
    void intervalChanged(const PopUpButton& sender);

    // Launch at login: settings/LaunchAtLogin.cpp
    void setLogin(bool enabled);
    void updateLoginStatus();
    void loginChanged();

private:
    void updateDashboard();
    void makeSettingsWindow();

    MainThread mainThread_;
    Platform& platform_;
    Application& application_;
    std::vector<std::string> arguments_;

public:
    Sampler sampler;
    PreferenceStore& defaults;
    History history;
    std::unique_ptr<StatusItem> statusItem;  ///< absent until launch
    std::unique_ptr<Timer> timer;            ///< the refresh timer
    std::string lastImageKey;                ///< of the image shown; emptied to force a redraw
    std::shared_ptr<Dashboard> dashboard;
    std::unique_ptr<Popover> popover;
    std::shared_ptr<ProcessRefresh> processRefresh;  ///< the process list's own cycle
    std::unique_ptr<SettingsWindow> settingsWindow;  ///< absent until it is first opened
    std::unique_ptr<Window> inspectionWindow;

    // The last refresh's readings. Each refresh overwrites all four.
    std::optional<double> latestCPU;
    std::optional<MemoryReading> latestMemory;
    std::optional<double> latestGPU;
    MemoryPressure latestPressure = MemoryPressure::unknown;
};

}  // namespace zephrine
