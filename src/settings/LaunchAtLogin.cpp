// SPDX-License-Identifier: MIT
// Launch at login: the program asks the system for it and shows what the system then says.
#include "app/AppDelegate.h"

namespace zephrine {

namespace {

const char* statusText(LoginItemStatus status) {
    switch (status) {
        case LoginItemStatus::enabled:
            return "Ready when you sign in.";
        case LoginItemStatus::requiresApproval:
            return "Approve Zephrine in System Settings → Login Items.";
        case LoginItemStatus::notRegistered:
        case LoginItemStatus::notFound:
            break;
    }
    return "Start manually whenever you need it.";
}

}  // namespace

void AppDelegate::setLogin(bool enabled) {
    LoginItem& item = platform_.loginItem();
    if (enabled && item.status() == LoginItemStatus::enabled) {
        updateLoginStatus();
        return;
    }
    const auto error = enabled ? item.registerItem() : item.unregisterItem();
    // Before the alert: behind it the box already shows how things really stand.
    updateLoginStatus();
    if (error) {
        application_.windows().runModalAlert("Couldn’t update launch at login", *error);
    }
}

void AppDelegate::updateLoginStatus() {
    if (!settingsWindow) {
        return;
    }
    const LoginItemStatus status = platform_.loginItem().status();
    settingsWindow->loginButton->setOn(status == LoginItemStatus::enabled ||
                                       status == LoginItemStatus::requiresApproval);
    settingsWindow->loginStatus->setStringValue(statusText(status));
}

void AppDelegate::loginChanged() {
    mainThread_.requireCurrent();
    setLogin(settingsWindow != nullptr && settingsWindow->loginButton->isOn());
}

}  // namespace zephrine
