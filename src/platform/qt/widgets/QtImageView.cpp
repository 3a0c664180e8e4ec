// SPDX-License-Identifier: MIT
// Icons by name: those that are built into the program, then those of the desktop's icon theme.
#include "platform/qt/widgets/QtImageView.h"

#include <QApplication>
#include <QPainter>
#include <utility>

#include "platform/qt/drawing/AppIcon.h"
#include "platform/qt/drawing/PlainText.h"
#include "platform/qt/widgets/Accessibility.h"

namespace zephrine {

class IconWidget final : public QWidget {
public:
    void setIcon(QIcon icon) {
        icon_ = std::move(icon);
        update();
    }

protected:
    void paintEvent(QPaintEvent* /*event*/) override {
        QPainter painter(this);
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        icon_.paint(&painter, rect());
    }

private:
    QIcon icon_;
};

QtImageView::QtImageView()
    : QtView(std::make_unique<IconWidget>()), icon_(static_cast<IconWidget&>(widget())) {
    setAccessibleRole(widget(), QAccessible::Graphic);
}

bool QtImageView::setImageNamed(const std::string& name) {
    const QString wanted = fromUTF8(name);
    QIcon icon = builtInIcon(wanted);
    if (icon.isNull()) {
        icon = QIcon::fromTheme(wanted);
    }
    if (icon.isNull()) {
        return false;
    }
    icon_.setIcon(std::move(icon));
    return true;
}

void QtImageView::setApplicationIcon() {
    icon_.setIcon(QApplication::windowIcon());
}

}  // namespace zephrine
