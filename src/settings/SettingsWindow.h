// SPDX-License-Identifier: MIT
// The settings window and its controls. What they do is the controller's.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "platform/Application.h"

namespace zephrine {

class SettingsWindow {
public:
    /// Builds the window, centred and not yet on screen. The application must outlive it.
    explicit SettingsWindow(Application& application);

    [[nodiscard]] Window& window();

private:
    void addLabel(const Rect& frame, const std::string& text, std::optional<Font> font = {},
                  std::optional<Color> color = {});
    std::unique_ptr<PopUpButton> addRow(double y, const std::string& title,
                                        const std::vector<std::string>& items);

    WidgetFactory& widgets_;
    std::unique_ptr<Window> window_;
    std::unique_ptr<View> view_;
    std::vector<std::unique_ptr<Label>> labels_;  ///< what is never touched after building

public:
    std::unique_ptr<CheckBox> loginButton;
    std::unique_ptr<Label> loginStatus;
    std::unique_ptr<PopUpButton> ramDisplay;
    std::unique_ptr<PopUpButton> fontSize;
    std::unique_ptr<PopUpButton> refreshInterval;
};

}  // namespace zephrine
