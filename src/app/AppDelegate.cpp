// SPDX-License-Identifier: MIT
#include "app/AppDelegate.h"

#include <utility>

#include "app/Preferences.h"
#include "platform/Trap.h"

namespace zephrine {

namespace {

// What the item is until its first picture tells its true length; points.
constexpr double initialItemLength = 74;
// How much of a period the system may delay a refresh by, to wake up for several things at once.
constexpr double toleranceShare = 0.15;

}  // namespace

AppDelegate::AppDelegate(Platform& platform, Application& application,
                         std::vector<std::string> arguments)
    : platform_(platform),
      application_(application),
      arguments_(std::move(arguments)),
      sampler(platform.hostCounters(), platform.gpuRegistry()),
      defaults(platform.preferenceStore()),
      dashboard(std::make_shared<Dashboard>(application, platform.formatting())),
      popover(application.windows().makePopover()),
      processRefresh(std::make_shared<ProcessRefresh>(
          application.runLoop(), application.backgroundWorker(),
          ProcessRefresh::Callbacks{
              .isDashboardVisible = [this] { return isDashboardVisible(); },
              .processTable = [this] { return platform_.processTable(); },
              .activeProcessorCount =
                  [this] { return platform_.hostCounters().activeProcessorCount(); },
              .updateProcesses =
                  [this](std::vector<ProcessUsage> rows) {
                      dashboard->updateProcesses(std::move(rows));
                  }})) {}

void AppDelegate::applicationDidFinishLaunching() {
    statusItem = application_.statusBar().statusItemWithLength(initialItemLength);
    trapUnless(statusItem != nullptr);
    statusItem->setAutosaveName("Zephrine");
    if (StatusItemButton* button = statusItem->button()) {
        button->setAction([this] { toggleDashboard(); });
    }

    dashboard->owner = weak_from_this();
    dashboard->loadView();
    popover->setContentView(dashboard->view());
    popover->setContentSize(dashboard->view().frame().size());
    popover->setDidCloseHandler([this] { popoverDidClose(); });

    application_.observeDidWake([this] { wokeUp(); });
    application_.observeThemeChanged([this] { themeChanged(); });
    resetTimer();
    refresh();

    for (const LaunchOption option : launchOptionsAmong(arguments_)) {
        performLaunchOption(option);
    }
}

void AppDelegate::performLaunchOption(LaunchOption option) {
    switch (option) {
        case LaunchOption::enableLogin:
            setLogin(true);
            break;
        case LaunchOption::showDashboard:
            showDashboard();
            break;
        case LaunchOption::showSettings:
            openSettings();
            break;
        case LaunchOption::inspect:
            openInspectionWindow();
            break;
    }
}

void AppDelegate::resetTimer() {
    timer.reset();
    const Seconds period(interval());
    timer = application_.runLoop().scheduleTimer(period, period * toleranceShare,
                                                 [this] { refresh(); });
}

void AppDelegate::refresh() {
    latestCPU = sampler.cpu();
    latestMemory = sampler.memory();
    latestGPU = sampler.gpu();
    latestPressure = sampler.pressure();
    history.append({.time = platform_.hostCounters().systemUptime(),
                    .cpu = latestCPU,
                    .ram = percentOf(latestMemory),
                    .gpu = latestGPU});
    updateStatusItem();
    if (isDashboardVisible()) {
        updateDashboard();
    }
}

void AppDelegate::wokeUp() {
    sampler.resetCPU();
    sampler.discoverGPU();
    processRefresh->previousProcesses.reset();
    refresh();
}

void AppDelegate::themeChanged() {
    lastImageKey.clear();
    updateStatusItem();
}

double AppDelegate::interval() const {
    return preferences::refreshInterval.value(defaults);
}

double AppDelegate::fontSize() const {
    return preferences::fontSize.value(defaults);
}

}  // namespace zephrine
