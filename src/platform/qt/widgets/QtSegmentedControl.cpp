// SPDX-License-Identifier: MIT
// The bar, its segments, and what a click on one of them does.
#include "platform/qt/widgets/QtSegmentedControl.h"

#include <QPainter>
#include <algorithm>
#include <utility>

#include "platform/qt/drawing/Colors.h"
#include "platform/qt/drawing/Fonts.h"
#include "platform/qt/drawing/Palette.h"
#include "platform/qt/drawing/PlainText.h"
#include "platform/qt/widgets/Accessibility.h"
#include "platform/qt/widgets/Painting.h"

namespace zephrine {

namespace {

constexpr QMargins barInsets{1, 0, 1, 0};

class SegmentWidget final : public QRadioButton {
public:
    SegmentWidget(const SystemAppearance& appearance, const QString& title, QWidget* bar)
        : QRadioButton(mnemonicFree(title), bar), appearance_(appearance), title_(title) {
        setAttribute(Qt::WA_Hover);
    }

protected:
    /// All of the segment, not just where a radio button would have its indicator.
    [[nodiscard]] bool hitButton(const QPoint& point) const override {
        return rect().contains(point);
    }

    void paintEvent(QPaintEvent* /*event*/) override {
        const Appearance appearance = appearance_.current();
        const ControlColors colors = controlColors(appearance);
        const QRectF box = QRectF(rect()).adjusted(2, 2, -2, -2);
        constexpr double radius = controlRadius - 2;
        QPainter painter(this);
        if (isChecked()) {
            paintBox(painter, box, radius, colors.face, colors.edge);
        }
        if (showsFocus(*this)) {
            paintFocusRing(painter, box, radius, colors.focus);
        }
        const bool strong = isChecked() || underMouse();
        painter.setFont(makeFont(
            {FontFamily::system, 12, isChecked() ? FontWeight::medium : FontWeight::regular}));
        painter.setPen(
            resolve(strong ? Color::labelColor : Color::secondaryLabelColor, appearance));
        painter.drawText(rect(), Qt::AlignCenter | Qt::TextSingleLine, title_);
    }

private:
    const SystemAppearance& appearance_;
    QString title_;
};

class BarWidget final : public QWidget {
public:
    explicit BarWidget(const SystemAppearance& appearance) : appearance_(appearance) {}

    QRadioButton* addSegment(const QString& title) {
        segments_.push_back(new SegmentWidget(appearance_, title, this));  // its parent owns it
        return segments_.back();
    }

protected:
    void resizeEvent(QResizeEvent* /*event*/) override {
        const QRect bar = rect().marginsRemoved(barInsets);
        const int count = static_cast<int>(segments_.size());
        for (int index = 0; index < count; ++index) {
            const int left = bar.left() + bar.width() * index / count;
            const int right = bar.left() + bar.width() * (index + 1) / count;
            segments_[static_cast<std::size_t>(index)]->setGeometry(left, bar.top(), right - left,
                                                                    bar.height());
        }
    }

    void paintEvent(QPaintEvent* /*event*/) override {
        const ControlColors colors = controlColors(appearance_.current());
        QPainter painter(this);
        paintBox(painter, rect().marginsRemoved(barInsets), controlRadius, colors.track,
                 colors.track);
    }

private:
    const SystemAppearance& appearance_;
    std::vector<QRadioButton*> segments_;
};

}  // namespace

QtSegmentedControl::QtSegmentedControl(const SystemAppearance& appearance,
                                       const std::vector<std::string>& labels)
    : QtView(std::make_unique<BarWidget>(appearance)) {
    setAccessibleRole(widget(), QAccessible::Grouping);
    for (const std::string& label : labels) {
        QRadioButton* segment = static_cast<BarWidget&>(widget()).addSegment(fromUTF8(label));
        segments_.push_back(segment);
        QObject::connect(segment, &QRadioButton::clicked, &widget(), [this] {
            const auto action = action_;  // it may destroy the control
            if (action) {
                action();
            }
        });
    }
}

void QtSegmentedControl::setSelectedSegment(int index) {
    for (QRadioButton* segment : segments_) {
        segment->setAutoExclusive(false);  // an exclusive group cannot be without a selection
    }
    for (std::size_t segment = 0; segment < segments_.size(); ++segment) {
        segments_[segment]->setChecked(static_cast<int>(segment) == index);
    }
    for (QRadioButton* segment : segments_) {
        segment->setAutoExclusive(true);
    }
}

int QtSegmentedControl::selectedSegment() const {
    const auto selected = std::find_if(segments_.begin(), segments_.end(),
                                       [](const auto* segment) { return segment->isChecked(); });
    return selected == segments_.end() ? -1 : static_cast<int>(selected - segments_.begin());
}

void QtSegmentedControl::setAction(std::function<void()> action) {
    action_ = std::move(action);
}

}  // namespace zephrine
