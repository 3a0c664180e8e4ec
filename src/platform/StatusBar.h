// SPDX-License-Identifier: MIT
// The system's status bar and the one item that this program puts there.
//
// Contract. Main thread only. A system that has no status bar shows the item by other means: the
// caller cannot tell. Setting what is already set sends nothing to anybody.
#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "platform/Color.h"
#include "platform/Drawing.h"

namespace zephrine {

/// The picture of the item, drawn for a bar that looks like `appearance`. `wide` is the picture
/// itself. Some panels force every item into a square: `square` makes a picture of the same figures
/// for a square of `side` points. Others are no higher than one line of text: `line` makes a
/// picture with both lines side by side. And some set text beside a small picture: `text` is what
/// the picture says, on two lines.
struct StatusItemImage {
    Image wide;
    std::function<Image(double side)> square = {};
    std::function<Image()> line = {};
    std::string text = {};
    Appearance appearance = Appearance::aqua;
};

/// The part of the item that is seen and clicked.
class StatusItemButton {
public:
    virtual ~StatusItemButton() = default;

    /// The better match of the two for the bar behind the item; absent when it cannot be told. May
    /// look at the bar first.
    [[nodiscard]] virtual std::optional<Appearance> effectiveAppearance() = 0;

    virtual void setToolTip(const std::string& text) = 0;
    virtual void setAccessibilityLabel(const std::string& text) = 0;
    virtual void setImage(StatusItemImage image) = 0;
    virtual void setAction(std::function<void()> action) = 0;
};

class StatusItem {
public:
    virtual ~StatusItem() = default;

    /// The system keeps the place that the user gave the item under this name.
    virtual void setAutosaveName(const std::string& name) = 0;
    /// Points along the bar.
    virtual void setLength(double length) = 0;
    /// Null when the system shows no button for the item. The item owns it.
    virtual StatusItemButton* button() = 0;
};

class StatusBar {
public:
    virtual ~StatusBar() = default;

    /// A new item of `length` points, which leaves the bar when it is destroyed; null when the
    /// system gives none.
    virtual std::unique_ptr<StatusItem> statusItemWithLength(double length) = 0;
};

}  // namespace zephrine
