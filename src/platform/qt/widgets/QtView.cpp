// SPDX-License-Identifier: MIT
// Frames, the tree of views, spoken names and tool tips: all that every widget has.
#include "platform/qt/widgets/QtView.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "platform/Trap.h"
#include "platform/qt/drawing/PlainText.h"
#include "text/SingleLine.h"

namespace zephrine {

QtView::QtView(std::unique_ptr<QWidget> widget) : widget_(std::move(widget)) {}

QtView::~QtView() {
    for (QtView* child : std::exchange(subviews_, {})) {
        child->superview_ = nullptr;
        child->widget_->setParent(nullptr);
    }
    leaveSuperview();
}

void QtView::setFrame(const Rect& frame) {
    if (frame == frame_) {
        return;
    }
    frame_ = frame;
    place();
    for (QtView* child : subviews_) {
        child->place();
    }
}

void QtView::addSubview(View& child) {
    QtView& added = qtView(child);
    added.leaveSuperview();
    added.superview_ = this;
    subviews_.push_back(&added);
    added.widget_->setParent(widget_.get());
    added.place();
    added.widget_->show();
}

void QtView::standIn(QWidget& container) {
    leaveSuperview();
    widget_->setParent(&container);
    place();
    widget_->show();
}

void QtView::leaveSuperview() {
    if (superview_ != nullptr) {
        std::erase(std::exchange(superview_, nullptr)->subviews_, this);
        widget_->setParent(nullptr);
    }
}

void QtView::place() {
    const auto whole = [](double points) { return static_cast<int>(std::lround(points)); };
    QPoint corner;  // without a superview, that of the container
    if (superview_ != nullptr) {
        corner = {whole(frame_.x), whole(superview_->frame_.height - frame_.y - frame_.height)};
    }
    widget_->setGeometry(QRect(corner, QSize(whole(frame_.width), whole(frame_.height))));
}

void QtView::setAccessibilityLabel(const std::string& label) {
    widget_->setAccessibleName(fromUTF8(label));
}

void QtView::setAccessibilityValue(const std::string& value) {
    const QString spoken = fromUTF8(value);
    if (spoken != widget_->accessibleDescription()) {
        widget_->setAccessibleDescription(spoken);
    }
}

void QtView::setToolTip(const std::string& text) {
    const QString line = fromUTF8(singleLine(text));
    const QString shown = shownLiterally(line);
    if (shown != widget_->toolTip()) {
        widget_->setToolTip(shown);
        // Without a description the tool tip would be read out, markup and all.
        widget_->setAccessibleDescription(line);
    }
}

QtView& qtView(View& view) {
    auto* ours = dynamic_cast<QtView*>(&view);
    trapUnless(ours != nullptr);
    return *ours;
}

}  // namespace zephrine
