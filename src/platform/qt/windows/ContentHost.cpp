// SPDX-License-Identifier: MIT
// Lets the view go in time: a Qt parent would delete it.
#include "platform/qt/windows/ContentHost.h"

#include <utility>

#include "platform/qt/widgets/QtView.h"

namespace zephrine {

ContentHost::~ContentHost() {
    empty();
}

void ContentHost::setContent(View& view) {
    QtView& content = qtView(view);
    QWidget* const before = content.widget().parentWidget();
    if (before != this) {
        empty();
        lender_ = dynamic_cast<ContentHost*>(before);
        content.standIn(*this);
    }
}

void ContentHost::giveBack(View& view) {
    const QPointer<ContentHost> lender = std::exchange(lender_, nullptr);
    if (lender != nullptr && qtView(view).widget().parentWidget() == this) {
        lender->setContent(view);
    }
}

void ContentHost::empty() {
    const auto views = findChildren<QWidget*>(Qt::FindDirectChildrenOnly);
    for (QWidget* view : views) {
        view->setParent(nullptr);
    }
}

}  // namespace zephrine
