// SPDX-License-Identifier: MIT
// The line fills its frame.
#include "platform/qt/widgets/QtSeparator.h"

#include <QPainter>

#include "platform/qt/drawing/Palette.h"
#include "platform/qt/widgets/Accessibility.h"

namespace zephrine {

namespace {

class LineWidget final : public QWidget {
public:
    explicit LineWidget(const SystemAppearance& appearance) : appearance_(appearance) {}

protected:
    void paintEvent(QPaintEvent* /*event*/) override {
        QPainter(this).fillRect(rect(), controlColors(appearance_.current()).separator);
    }

private:
    const SystemAppearance& appearance_;
};

}  // namespace

QtSeparator::QtSeparator(const SystemAppearance& appearance)
    : QtView(std::make_unique<LineWidget>(appearance)) {
    setAccessibleRole(widget(), QAccessible::Separator);
}

}  // namespace zephrine
