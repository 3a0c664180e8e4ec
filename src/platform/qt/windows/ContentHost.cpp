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
    content_ = &view;
    take();
}

void ContentHost::take() {
    if (content_ == nullptr) {
        return;
    }
    QWidget* const before = qtView(*content_).widget().parentWidget();
    if (before != this) {
        lender_ = dynamic_cast<ContentHost*>(before);
        showContent();
    }
}

void ContentHost::giveBack() {
    const QPointer<ContentHost> lender = std::exchange(lender_, nullptr);
    if (lender != nullptr && lender->content_ == content_ &&
        qtView(*content_).widget().parentWidget() == this) {
        lender->showContent();
    }
}

void ContentHost::showContent() {
    empty();
    qtView(*content_).standIn(*this);
}

void ContentHost::empty() {
    const auto views = findChildren<QWidget*>(Qt::FindDirectChildrenOnly);
    for (QWidget* view : views) {
        view->setParent(nullptr);
    }
}

}  // namespace zephrine
