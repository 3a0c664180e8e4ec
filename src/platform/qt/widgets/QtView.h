// SPDX-License-Identifier: MIT
// The base of all widgets, and the one place where frames that count from the lower left become
// Qt's, which count from the upper left.
#pragma once

#include <QWidget>
#include <memory>
#include <vector>

#include "platform/Widgets.h"

namespace zephrine {

class QtView : public virtual View {
public:
    QtView() : QtView(std::make_unique<QWidget>()) {}
    /// Qt's parents delete their children: a view takes its widget out of theirs before that can
    /// happen, so that the view alone owns it.
    explicit QtView(std::unique_ptr<QWidget> widget);
    ~QtView() override;
    QtView(const QtView&) = delete;
    QtView& operator=(const QtView&) = delete;

    void setFrame(const Rect& frame) override;
    [[nodiscard]] Rect frame() const override { return frame_; }
    void addSubview(View& child) override;
    void setAccessibilityLabel(const std::string& label) override;
    void setAccessibilityValue(const std::string& value) override;
    void setToolTip(const std::string& text) override;

    /// Shows this view in `container`, outside any other view. The container gives its children
    /// up before it is destroyed.
    void standIn(QWidget& container);

    [[nodiscard]] QWidget& widget() const { return *widget_; }

private:
    void leaveSuperview();
    void place();

    std::unique_ptr<QWidget> widget_;
    Rect frame_;
    QtView* superview_ = nullptr;
    std::vector<QtView*> subviews_;
};

/// The Qt side of a view that this back end made, which all views are here.
QtView& qtView(View& view);

}  // namespace zephrine
