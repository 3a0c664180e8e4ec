// SPDX-License-Identifier: MIT
// A status bar whose one item remembers what it was told.
#pragma once

#include <utility>
#include <vector>

#include "platform/StatusBar.h"

namespace zephrine {

class FakeStatusItemButton : public StatusItemButton {
public:
    std::optional<Appearance> appearance = Appearance::aqua;
    std::string toolTip;
    std::string accessibilityLabel;
    StatusItemImage image;
    std::function<void()> action;
    int toolTipsSet = 0;
    int labelsSet = 0;
    int imagesSet = 0;

    [[nodiscard]] std::optional<Appearance> effectiveAppearance() override { return appearance; }
    void setToolTip(const std::string& text) override {
        toolTip = text;
        ++toolTipsSet;
    }
    void setAccessibilityLabel(const std::string& text) override {
        accessibilityLabel = text;
        ++labelsSet;
    }
    void setImage(StatusItemImage newImage) override {
        image = std::move(newImage);
        ++imagesSet;
    }
    void setAction(std::function<void()> newAction) override { action = std::move(newAction); }
};

class FakeStatusBar : public StatusBar {
public:
    bool givesItem = true;
    bool givesButton = true;
    FakeStatusItemButton button;
    std::vector<double> lengths;  ///< every length that the item was given, the first one included
    std::string autosaveName;

    std::unique_ptr<StatusItem> statusItemWithLength(double length) override {
        lengths.push_back(length);
        return givesItem ? std::make_unique<Item>(*this) : nullptr;
    }

private:
    class Item : public StatusItem {
    public:
        explicit Item(FakeStatusBar& bar) : bar_(bar) {}
        void setAutosaveName(const std::string& name) override { bar_.autosaveName = name; }
        void setLength(double length) override { bar_.lengths.push_back(length); }
        StatusItemButton* button() override { return bar_.givesButton ? &bar_.button : nullptr; }

    private:
        FakeStatusBar& bar_;
    };
};

}  // namespace zephrine
