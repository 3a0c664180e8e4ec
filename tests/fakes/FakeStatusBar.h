// SPDX-License-Identifier: MIT
// A status bar whose one item remembers what it was told.
#pragma once

#include <utility>
#include <vector>

#include "fakes/CallLog.h"
#include "platform/StatusBar.h"

namespace zephrine {

class FakeStatusItemButton : public StatusItemButton {
public:
    explicit FakeStatusItemButton(CallLog log = {}) : calls(std::move(log)) {}

    CallLog calls;
    std::optional<Appearance> appearance = Appearance::aqua;
    std::string toolTip;
    std::string accessibilityLabel;
    StatusItemImage image;
    std::function<void()> action;
    int toolTipsSet = 0;
    int labelsSet = 0;
    int imagesSet = 0;

    [[nodiscard]] std::optional<Appearance> effectiveAppearance() override {
        calls.note("effectiveAppearance");
        return appearance;
    }
    void setToolTip(const std::string& text) override {
        calls.note("setToolTip");
        toolTip = text;
        ++toolTipsSet;
    }
    void setAccessibilityLabel(const std::string& text) override {
        calls.note("setAccessibilityLabel");
        accessibilityLabel = text;
        ++labelsSet;
    }
    void setImage(StatusItemImage newImage) override {
        calls.note("setImage");
        image = std::move(newImage);
        ++imagesSet;
    }
    void setAction(std::function<void()> newAction) override {
        calls.note("setAction");
        action = std::move(newAction);
    }
};

class FakeStatusBar : public StatusBar {
public:
    explicit FakeStatusBar(CallLog log = {}) : calls(std::move(log)) {}

    CallLog calls;
    bool givesItem = true;
    bool givesButton = true;
    FakeStatusItemButton button{calls};
    std::vector<double> lengths;  ///< every length that the item was given, the first one included
    std::string autosaveName;

    std::unique_ptr<StatusItem> statusItemWithLength(double length) override {
        calls.note("statusItemWithLength");
        lengths.push_back(length);
        return givesItem ? std::make_unique<Item>(*this) : nullptr;
    }

private:
    class Item : public StatusItem {
    public:
        explicit Item(FakeStatusBar& bar) : bar_(bar) {}
        void setAutosaveName(const std::string& name) override {
            bar_.calls.note("setAutosaveName");
            bar_.autosaveName = name;
        }
        void setLength(double length) override {
            bar_.calls.note("setLength");
            bar_.lengths.push_back(length);
        }
        StatusItemButton* button() override { return bar_.givesButton ? &bar_.button : nullptr; }

    private:
        FakeStatusBar& bar_;
    };
};

}  // namespace zephrine
