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

    /// Takes `view` in, out of wherever it stood before; what stood here leaves.
    void setContent(View& view);
    /// Returns `view` to the host that this one has taken it from last.
    void giveBack(View& view);

private:
    void empty();

    QPointer<ContentHost> lender_;
};

}  // namespace zephrine
