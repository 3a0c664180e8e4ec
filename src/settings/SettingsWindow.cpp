// SPDX-License-Identifier: MIT
// The settings window: built when it is first opened, kept from then on and only shown again. A
// choice is stored and takes effect at once.
#include "settings/SettingsWindow.h"

#include <utility>

#include "app/AppDelegate.h"
#include "app/Preferences.h"

namespace zephrine {

namespace {

constexpr Size windowSize{400, 310};
constexpr int gigabytesItem = 1;

}  // namespace

SettingsWindow::SettingsWindow(Application& application)
    : widgets_(application.widgets()),
      window_(application.windows().makeWindow("Zephrine Settings", windowSize)),
      view_(widgets_.makeView({0, 0, windowSize.width, windowSize.height})) {
    window_->setContentView(*view_);
    addLabel({24, 264, 350, 30}, "Make it yours.",
             Font{FontFamily::system, 22, FontWeight::semibold});

    loginButton = widgets_.makeCheckBox("Launch Zephrine at login");
    loginButton->setFrame({24, 222, 350, 24});
    view_->addSubview(*loginButton);

    loginStatus = widgets_.makeLabel("");
    loginStatus->setFrame({44, 198, 332, 22});
    loginStatus->setFont({FontFamily::system, 10});
    loginStatus->setTextColor(Color::secondaryLabelColor);
    view_->addSubview(*loginStatus);

    ramDisplay = addRow(156, "RAM display", {"Percentage", "Gigabytes"});
    fontSize = addRow(113, std::string(application.vocabulary().bar) + " text",
                      preferences::fontSize.titles());
    refreshInterval = addRow(70, "Refresh interval", preferences::refreshInterval.titles());
    addLabel({24, 21, 350, 20}, "Slower refresh rates use less energy.",
             Font{FontFamily::system, 11}, Color::secondaryLabelColor);
    window_->center();
}

Window& SettingsWindow::window() {
    return *window_;
}

void SettingsWindow::addLabel(const Rect& frame, const std::string& text, std::optional<Font> font,
                              std::optional<Color> color) {
    auto label = widgets_.makeLabel(text);
    label->setFrame(frame);
    if (font) {
        label->setFont(*font);
    }
    if (color) {
        label->setTextColor(*color);
    }
    view_->addSubview(*label);
    labels_.push_back(std::move(label));
}

std::unique_ptr<PopUpButton> SettingsWindow::addRow(double y, const std::string& title,
                                                    const std::vector<std::string>& items) {
    addLabel({24, y, 165, 23}, title);
    auto button = widgets_.makePopUpButton(items);
    button->setFrame({205, y, 170, 26});
    button->setAccessibilityLabel(title);
    view_->addSubview(*button);
    return button;
}

void AppDelegate::openSettings() {
    mainThread_.requireCurrent();
    popover->performClose();
    if (!settingsWindow) {
        makeSettingsWindow();
    }
    updateLoginStatus();
    application_.activateIgnoringOtherApps();
    settingsWindow->window().makeKeyAndOrderFront();
}

void AppDelegate::makeSettingsWindow() {
    settingsWindow = std::make_unique<SettingsWindow>(application_);
    SettingsWindow& window = *settingsWindow;
    window.ramDisplay->selectItem(defaults.boolForKey(preferences::ramInGBKey) ? gigabytesItem : 0);
    window.fontSize->selectItem(static_cast<int>(preferences::fontSize.index(defaults)));
    window.refreshInterval->selectItem(
        static_cast<int>(preferences::refreshInterval.index(defaults)));

    window.loginButton->setAction([this] { loginChanged(); });
    window.ramDisplay->setAction([this] { ramChanged(*settingsWindow->ramDisplay); });
    window.fontSize->setAction([this] { fontChanged(*settingsWindow->fontSize); });
    window.refreshInterval->setAction(
        [this] { intervalChanged(*settingsWindow->refreshInterval); });
}

void AppDelegate::ramChanged(const PopUpButton& sender) {
    mainThread_.requireCurrent();
    defaults.setBool(sender.indexOfSelectedItem() == gigabytesItem, preferences::ramInGBKey);
    lastImageKey.clear();
    updateStatusItem();
}

void AppDelegate::fontChanged(const PopUpButton& sender) {
    mainThread_.requireCurrent();
    preferences::fontSize.choose(sender.indexOfSelectedItem(), defaults);
    lastImageKey.clear();
    updateStatusItem();
}

void AppDelegate::intervalChanged(const PopUpButton& sender) {
    mainThread_.requireCurrent();
    preferences::refreshInterval.choose(sender.indexOfSelectedItem(), defaults);
    resetTimer();
}

}  // namespace zephrine
