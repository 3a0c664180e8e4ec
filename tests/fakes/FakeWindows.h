// SPDX-License-Identifier: MIT
// Windows and a popover that are on screen when they say so.
#pragma once

#include <utility>
#include <vector>

#include "fakes/CallLog.h"
#include "platform/Windows.h"

namespace zephrine {

class FakePopover : public Popover {
public:
    explicit FakePopover(CallLog log) : calls(std::move(log)) {}

    CallLog calls;
    View* content = nullptr;
    Size size;
    StatusItemButton* anchor = nullptr;
    bool shown = false;
    std::function<void()> didClose;

    void setContentView(View& view) override {
        calls.note("setContentView");
        content = &view;
    }
    void setContentSize(Size newSize) override {
        calls.note("setContentSize");
        size = newSize;
    }
    void setDidCloseHandler(std::function<void()> handler) override {
        calls.note("setDidCloseHandler");
        didClose = std::move(handler);
    }
    [[nodiscard]] bool isShown() const override { return shown; }
    void showRelativeTo(StatusItemButton& button) override {
        calls.note("showRelativeTo");
        anchor = &button;
        shown = true;
    }
    void performClose() override {
        calls.note("performClose");
        if (shown) {
            shown = false;
            didClose();
        }
    }
};

class FakeWindow : public Window {
public:
    FakeWindow(std::string text, Size contentSize, CallLog log)
        : calls(std::move(log)), title(std::move(text)), size(contentSize) {}

    CallLog calls;  ///< each with the title of the window
    std::string title;
    Size size;
    View* content = nullptr;
    bool visible = false;

    void setContentView(View& view) override {
        note("setContentView");
        content = &view;
    }
    [[nodiscard]] bool isVisible() const override { return visible; }
    void center() override { note("center"); }
    void makeKeyAndOrderFront() override {
        note("makeKeyAndOrderFront");
        visible = true;
    }

private:
    void note(const std::string& operation) { calls.note(operation + " " + title); }
};

class FakeWindowFactory : public WindowFactory {
public:
    explicit FakeWindowFactory(CallLog log = {}) : calls(std::move(log)) {}

    CallLog calls;
    struct Alert {
        std::string messageText;
        std::string informativeText;
    };
    std::vector<Alert> alerts;         ///< all that were shown and dismissed
    std::function<void()> whileAlert;  ///< runs while an alert is on screen
    FakePopover* popover = nullptr;    ///< the last one made
    std::vector<FakeWindow*> windows;  ///< all that were made; the makers own them

    std::unique_ptr<Popover> makePopover() override {
        auto made = std::make_unique<FakePopover>(calls);
        popover = made.get();
        return made;
    }
    std::unique_ptr<Window> makeWindow(const std::string& title, Size contentSize) override {
        auto made = std::make_unique<FakeWindow>(title, contentSize, calls);
        windows.push_back(made.get());
        return made;
    }
    void runModalAlert(const std::string& messageText,
                       const std::string& informativeText) override {
        calls.note("runModalAlert");
        if (whileAlert) {
            whileAlert();
        }
        alerts.push_back({messageText, informativeText});
    }
};

}  // namespace zephrine
