// SPDX-License-Identifier: MIT
// Lets the view go in time: a Qt parent would delete it.
#include "platform/qt/windows/ContentHost.h"

#include "platform/qt/widgets/QtView.h"

namespace zephrine {

ContentHost::~ContentHost() {
    empty();
}

void ContentHost::setContent(View& view) {
    QtView& content = qtView(view);
    if (content.widget().parentWidget() != this) {
        empty();
        content.standIn(*this);
    }
}

void ContentHost::empty() {
    const auto views = findChildren<QWidget*>(Qt::FindDirectChildrenOnly);
    for (QWidget* view : views) {
        view->setParent(nullptr);
    }
}

}  // namespace zephrine
