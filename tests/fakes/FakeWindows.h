// SPDX-License-Identifier: MIT
// Windows and a popover that are on screen when they say so.
#pragma once

#include <utility>
#include <vector>

#include "platform/Windows.h"

namespace zephrine {

class FakePopover : public Popover {
public:
    View* content = nullptr;
    Size size;
    StatusItemButton* anchor = nullptr;
    bool shown = false;
    std::function<void()> didClose;

    void setContentView(View& view) override { content = &view; }
    void setContentSize(Size newSize) override { size = newSize; }
    void setDidCloseHandler(std::function<void()> handler) override {
        didClose = std::move(handler);
    }
    [[nodiscard]] bool isShown() const override { return shown; }
    void showRelativeTo(StatusItemButton& button) override {
        anchor = &button;
        shown = true;
    }
    void performClose() override {
        if (shown) {
            shown = false;
            didClose();
        }
    }
};

class FakeWindow : public Window {
public:
    FakeWindow(std::string text, Size contentSize) : title(std::move(text)), size(contentSize) {}
    std::string title;
    Size size;
    View* content = nullptr;
    bool visible = false;
    std::vector<std::string> calls;

    void setContentView(View& view) override { content = &view; }
    [[nodiscard]] bool isVisible() const override { return visible; }
    void center() override { calls.emplace_back("center"); }
    void makeKeyAndOrderFront() override {
        calls.emplace_back("makeKeyAndOrderFront");
        visible = true;
    }
};

class FakeWindowFactory : public WindowFactory {
public:
    struct Alert {
        std::string messageText;
        std::string informativeText;
    };
    std::vector<Alert> alerts;         ///< all that were shown and dismissed
    std::function<void()> whileAlert;  ///< runs while an alert is on screen
    FakePopover* popover = nullptr;    ///< the last one made
    std::vector<FakeWindow*> windows;  ///< all that were made; the makers own them

    std::unique_ptr<Popover> makePopover() override {
        auto made = std::make_unique<FakePopover>();
        popover = made.get();
        return made;
    }
    std::unique_ptr<Window> makeWindow(const std::string& title, Size contentSize) override {
        auto made = std::make_unique<FakeWindow>(title, contentSize);
        windows.push_back(made.get());
        return made;
    }
    void runModalAlert(const std::string& messageText,
                       const std::string& informativeText) override {
        if (whileAlert) {
            whileAlert();
        }
        alerts.push_back({messageText, informativeText});
    }
};

}  // namespace zephrine
