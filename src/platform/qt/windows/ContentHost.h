// SPDX-License-Identifier: MIT
// The place in a window where a content view stands. The view stays its owner's.
#pragma once

#include <QPointer>
#include <QWidget>

#include "platform/Widgets.h"

namespace zephrine {

class ContentHost final : public QWidget {
public:
    explicit ContentHost(QWidget* window) : QWidget(window) {}
    ~ContentHost() override;
    ContentHost(const ContentHost&) = delete;
    ContentHost& operator=(const ContentHost&) = delete;

    /// From now on the content is `view`: takes it in; what stood here leaves.
    void setContent(View& view);
    /// Takes the content in, if there is one, out of wherever it stands.
    void take();
    /// Returns the content to the host that this one has taken it from last.
    void giveBack();

private:
    void showContent();
    void empty();

    View* content_ = nullptr;
    QPointer<ContentHost> lender_;
};

}  // namespace zephrine
