// SPDX-License-Identifier: MIT
// Controls that remember what they were told and let a test use them.
#pragma once

#include <optional>
#include <utility>

#include "fakes/CallLog.h"
#include "platform/Widgets.h"

namespace zephrine {

/// Stands for a host that a content view can stand in, for as long as that exists.
struct FakePlace {};

class FakeView : public virtual View {
public:
    CallLog calls;
    std::string kind = "view";
    Rect rect;
    std::vector<FakeView*> children;  ///< in the order of adding
    std::string accessibilityLabel;
    std::string accessibilityValue;
    std::string toolTip;
    std::weak_ptr<FakePlace> place;  ///< of a content view: the host that it stands in, if any

    void setFrame(const Rect& frame) override { rect = frame; }
    [[nodiscard]] Rect frame() const override { return rect; }
    void addSubview(View& child) override { children.push_back(dynamic_cast<FakeView*>(&child)); }
    void setAccessibilityLabel(const std::string& label) override { accessibilityLabel = label; }
    void setAccessibilityValue(const std::string& value) override {
        calls.note("setAccessibilityValue");
        accessibilityValue = value;
    }
    void setToolTip(const std::string& text) override { toolTip = text; }
};

class FakeLabel : public FakeView, public Label {
public:
    explicit FakeLabel(std::string initial) : text(std::move(initial)) { kind = "label"; }
    std::string text;
    std::optional<Font> font;
    Color color = Color::labelColor;
    TextAlignment alignment = TextAlignment::natural;
    LineBreakMode lineBreakMode = LineBreakMode::clipping;
    int textsSet = 0;

    void setStringValue(const std::string& newText) override {
        calls.note("setStringValue " + newText);
        text = newText;
        ++textsSet;
    }
    [[nodiscard]] std::string stringValue() const override { return text; }
    void setFont(const Font& newFont) override { font = newFont; }
    void setTextColor(Color newColor) override { color = newColor; }
    void setAlignment(TextAlignment newAlignment) override { alignment = newAlignment; }
    void setLineBreakMode(LineBreakMode mode) override { lineBreakMode = mode; }
};

class FakeImageView : public FakeView, public ImageView {
public:
    explicit FakeImageView(bool imageExists) : imageExists_(imageExists) { kind = "image"; }
    std::string imageName;
    bool showsApplicationIcon = false;

    bool setImageNamed(const std::string& name) override {
        if (imageExists_) {
            imageName = name;
        }
        return imageExists_;
    }
    void setApplicationIcon() override { showsApplicationIcon = true; }

private:
    bool imageExists_;
};

class FakeButton : public FakeView, public Button {
public:
    explicit FakeButton(std::string text) : title(std::move(text)) { kind = "button"; }
    std::string title;
    std::function<void()> press;

    void setAction(std::function<void()> action) override { press = std::move(action); }
};

class FakeCheckBox : public FakeView, public CheckBox {
public:
    explicit FakeCheckBox(std::string text) : title(std::move(text)) { kind = "check box"; }
    std::string title;
    bool on = false;
    std::function<void()> action;

    void setOn(bool nowOn) override { on = nowOn; }
    [[nodiscard]] bool isOn() const override { return on; }
    void setAction(std::function<void()> newAction) override { action = std::move(newAction); }
    /// Does what a user's click does.
    void click() {
        on = !on;
        action();
    }
};

class FakePopUpButton : public FakeView, public PopUpButton {
public:
    explicit FakePopUpButton(std::vector<std::string> texts) : titles(std::move(texts)) {
        kind = "pop-up";
    }
    std::vector<std::string> titles;
    int selected = 0;
    std::function<void()> action;

    void selectItem(int index) override { selected = index; }
    [[nodiscard]] int indexOfSelectedItem() const override { return selected; }
    void setAction(std::function<void()> newAction) override { action = std::move(newAction); }
    /// Does what a user's choice does.
    void choose(int index) {
        selected = index;
        action();
    }
};

class FakeSegmentedControl : public FakeView, public SegmentedControl {
public:
    explicit FakeSegmentedControl(std::vector<std::string> texts) : labels(std::move(texts)) {
        kind = "segments";
    }
    std::vector<std::string> labels;
    int selected = -1;
    std::function<void()> action;

    void setSelectedSegment(int index) override { selected = index; }
    [[nodiscard]] int selectedSegment() const override { return selected; }
    void setAction(std::function<void()> newAction) override { action = std::move(newAction); }
    /// Does what a user's click on the segment does.
    void click(int index) {
        selected = index;
        action();
    }
};

class FakeCanvas : public FakeView, public Canvas {
public:
    FakeCanvas() { kind = "canvas"; }
    std::function<void(DrawingContext&, Size)> draw;
    int displaysNeeded = 0;

    void setDrawingHandler(std::function<void(DrawingContext&, Size)> handler) override {
        draw = std::move(handler);
    }
    void setNeedsDisplay() override {
        calls.note("setNeedsDisplay");
        ++displaysNeeded;
    }
};

class FakeWidgetFactory : public WidgetFactory {
public:
    explicit FakeWidgetFactory(CallLog log = {}) : calls(std::move(log)) {}

    CallLog calls;
    bool imagesExist = true;
    bool givesSegments = true;

    std::unique_ptr<View> makeView(const Rect& frame) override {
        auto view = make<FakeView>();
        view->rect = frame;
        return view;
    }
    std::unique_ptr<Label> makeLabel(const std::string& text) override {
        return make<FakeLabel>(text);
    }
    std::unique_ptr<ImageView> makeImageView() override { return make<FakeImageView>(imagesExist); }
    std::unique_ptr<Button> makeButton(const std::string& title) override {
        return make<FakeButton>(title);
    }
    std::unique_ptr<CheckBox> makeCheckBox(const std::string& title) override {
        return make<FakeCheckBox>(title);
    }
    std::unique_ptr<PopUpButton> makePopUpButton(const std::vector<std::string>& titles) override {
        return make<FakePopUpButton>(titles);
    }
    std::unique_ptr<SegmentedControl> makeSegmentedControl(
        const std::vector<std::string>& labels) override {
        return givesSegments ? make<FakeSegmentedControl>(labels) : nullptr;
    }
    std::unique_ptr<View> makeSeparator() override {
        auto separator = make<FakeView>();
        separator->kind = "separator";
        return separator;
    }
    std::unique_ptr<Canvas> makeCanvas() override { return make<FakeCanvas>(); }

private:
    template <typename Fake, typename... Arguments>
    std::unique_ptr<Fake> make(Arguments... arguments) {
        auto made = std::make_unique<Fake>(std::move(arguments)...);
        made->calls = calls;
        calls.note("make " + made->kind);
        return made;
    }
};

/// The fake behind a control that was made by a `FakeWidgetFactory`.
template <typename Fake>
Fake& fake(View& view) {
    return dynamic_cast<Fake&>(view);
}

}  // namespace zephrine
