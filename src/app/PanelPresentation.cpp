// SPDX-License-Identifier: MIT
// How the dashboard comes on screen and leaves it: in the popover below the status item, or in the
// inspection window.
#include "app/AppDelegate.h"
#include "platform/Trap.h"

namespace zephrine {

void AppDelegate::toggleDashboard() {
    if (popover->isShown()) {
        popover->performClose();
    } else {
        showDashboard();
    }
}

void AppDelegate::showDashboard() {
    trapUnless(statusItem != nullptr);
    StatusItemButton* button = statusItem->button();
    if (button == nullptr || popover->isShown()) {
        return;
    }
    // From the last refresh's readings: measuring here would shorten the next CPU interval.
    updateDashboard();
    application_.activateIgnoringOtherApps();
    popover->showRelativeTo(*button);
    // A popover that could not open, since the system has hidden the item, will not close either:
    // nothing would ever stop what is started here.
    if (popover->isShown()) {
        processRefresh->startProcessUpdates();
    }
}

bool AppDelegate::applicationShouldHandleReopen(bool /*hasVisibleWindows*/) {
    showDashboard();
    return false;
}

void AppDelegate::popoverDidClose() {
    processRefresh->stopProcessUpdates();
}

void AppDelegate::openInspectionWindow() {
    inspectionWindow =
        application_.windows().makeWindow("Zephrine Dashboard", dashboard->view().frame().size());
    inspectionWindow->setContentView(dashboard->view());
    inspectionWindow->center();
    inspectionWindow->makeKeyAndOrderFront();
    application_.activateIgnoringOtherApps();
    processRefresh->startProcessUpdates();
}

bool AppDelegate::isDashboardVisible() const {
    return popover->isShown() || (inspectionWindow != nullptr && inspectionWindow->isVisible());
}

void AppDelegate::updateDashboard() {
    dashboard->update(latestCPU, latestMemory, latestGPU, latestPressure, history, interval());
}

}  // namespace zephrine
