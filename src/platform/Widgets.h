// SPDX-License-Identifier: MIT
// The controls that windows are built from. Frames are points in the parent's coordinates (origin
// lower left, y upwards) and never change by themselves: there is no automatic layout.
//
// Contract. Main thread only. Texts are UTF-8 and always plain, whatever they contain. A child is
// owned by whoever made it, not by its parent, and may be destroyed before or after it. Setting
// what is already set draws nothing.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "platform/Drawing.h"

namespace zephrine {

enum class TextAlignment { natural, left, right };
enum class LineBreakMode { clipping, truncatingTail };

/// A rectangle on the screen; the base of every control, and on its own a plain container.
class View {
public:
    virtual ~View() = default;

    virtual void setFrame(const Rect& frame) = 0;
    [[nodiscard]] virtual Rect frame() const = 0;
    /// Shows `child` inside this view, above the children added before it and next in tab order.
    virtual void addSubview(View& child) = 0;
    /// Spoken name of this element; naming a view makes it an accessibility element.
    virtual void setAccessibilityLabel(const std::string& label) = 0;
    virtual void setAccessibilityValue(const std::string& value) = 0;
    virtual void setToolTip(const std::string& text) = 0;
};

/// One line of text that cannot be edited or selected. Starts in `labelColor`.
class Label : public virtual View {
public:
    virtual void setStringValue(const std::string& text) = 0;
    [[nodiscard]] virtual std::string stringValue() const = 0;
    virtual void setFont(const Font& font) = 0;
    virtual void setTextColor(Color color) = 0;
    virtual void setAlignment(TextAlignment alignment) = 0;
    virtual void setLineBreakMode(LineBreakMode mode) = 0;
};

class ImageView : public virtual View {
public:
    /// Shows the image called `name`; false, and nothing changed, when there is none.
    virtual bool setImageNamed(const std::string& name) = 0;
    /// Shows the application's own icon.
    virtual void setApplicationIcon() = 0;
};

/// A push button with the system's rounded bezel.
class Button : public virtual View {
public:
    virtual void setAction(std::function<void()> action) = 0;
};

/// A box to tick, with its title beside it.
class CheckBox : public virtual View {
public:
    /// Setting it does not call the action.
    virtual void setOn(bool on) = 0;
    [[nodiscard]] virtual bool isOn() const = 0;
    virtual void setAction(std::function<void()> action) = 0;
};

/// A button that shows one of several titles and opens the list of them all.
class PopUpButton : public virtual View {
public:
    /// Index of the item shown, −1 for none. Setting it does not call the action.
    virtual void selectItem(int index) = 0;
    [[nodiscard]] virtual int indexOfSelectedItem() const = 0;
    virtual void setAction(std::function<void()> action) = 0;
};

/// Two or more segments of which one is selected.
class SegmentedControl : public virtual View {
public:
    /// Index of the selected segment, −1 for none. Setting it does not call the action.
    virtual void setSelectedSegment(int index) = 0;
    [[nodiscard]] virtual int selectedSegment() const = 0;
    virtual void setAction(std::function<void()> action) = 0;
};

/// A view that paints itself.
class Canvas : public virtual View {
public:
    /// Called whenever the system wants the view drawn, with its size in points.
    virtual void setDrawingHandler(std::function<void(DrawingContext&, Size)> handler) = 0;
    virtual void setNeedsDisplay() = 0;
};

/// Makes controls; they belong to the caller.
class WidgetFactory {
public:
    virtual ~WidgetFactory() = default;

    virtual std::unique_ptr<View> makeView(const Rect& frame) = 0;
    virtual std::unique_ptr<Label> makeLabel(const std::string& text) = 0;
    virtual std::unique_ptr<ImageView> makeImageView() = 0;
    virtual std::unique_ptr<Button> makeButton(const std::string& title) = 0;
    virtual std::unique_ptr<CheckBox> makeCheckBox(const std::string& title) = 0;
    /// The first item is selected.
    virtual std::unique_ptr<PopUpButton> makePopUpButton(
        const std::vector<std::string>& titles) = 0;
    virtual std::unique_ptr<SegmentedControl> makeSegmentedControl(
        const std::vector<std::string>& labels) = 0;
    virtual std::unique_ptr<View> makeSeparator() = 0;
    virtual std::unique_ptr<Canvas> makeCanvas() = 0;
};

}  // namespace zephrine
