// SPDX-License-Identifier: MIT
// Windows and a popover that are on screen when they say so.
#pragma once

#include <utility>
#include <vector>

#include "fakes/CallLog.h"
#include "fakes/FakeWidgets.h"
#include "platform/Windows.h"

namespace zephrine {

/// What the popover and the windows have in common: a place for a content view.
class FakeHost {
public:
    View* content = nullptr;  ///< the view that it was given last, wherever that stands now

protected:
    void give(View& view) {
        if (std::exchange(content, &view) != &view) {
            place_ =
                std::make_shared<FakePlace>();  // the former content stands nowhere from now on
        }
        take();
    }
    void take() {
        if (content != nullptr) {
            FakeView& view = fake<FakeView>(*content);
            const auto before = view.place.lock();
            if (before != place_) {
                lender_ = before;
                view.place = place_;
            }
        }
    }
    void giveBack() {
        const auto lender = std::exchange(lender_, {}).lock();
        if (lender != nullptr && fake<FakeView>(*content).place.lock() == place_) {
            fake<FakeView>(*content).place = lender;
        }
    }

private:
    std::shared_ptr<FakePlace> place_ = std::make_shared<FakePlace>();
    std::weak_ptr<FakePlace> lender_;
};

class FakePopover : public Popover, public FakeHost {
public:
    explicit FakePopover(CallLog log) : calls(std::move(log)) {}

    CallLog calls;
    Size size;
    StatusItemButton* anchor = nullptr;
    bool shown = false;
    bool itemIsHidden = false;  ///< by the system, as it does where there is no room
    std::function<void()> didClose;

    void setContentView(View& view) override {
        calls.note("setContentView");
        give(view);
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
        if (shown || itemIsHidden) {
            return;
        }
        anchor = &button;
        take();
        shown = true;
    }
    void performClose() override {
        calls.note("performClose");
        if (shown) {
            shown = false;
            giveBack();
            if (didClose) {
                didClose();
            }
        }
    }
};

class FakeWindow : public Window, public FakeHost {
public:
    FakeWindow(std::string text, Size contentSize, CallLog log)
        : calls(std::move(log)), title(std::move(text)), size(contentSize) {}

    CallLog calls;  ///< each with the title of the window
    std::string title;
    Size size;
    bool visible = false;

    void setContentView(View& view) override {
        note("setContentView");
        give(view);
    }
    [[nodiscard]] bool isVisible() const override { return visible; }
    void center() override { note("center"); }
    void makeKeyAndOrderFront() override {
        note("makeKeyAndOrderFront");
        take();
        visible = true;
    }
    /// Does what a user's click on the close button does.
    void close() {
        visible = false;
        giveBack();
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
