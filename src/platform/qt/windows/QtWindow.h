// SPDX-License-Identifier: MIT
// An ordinary window of fixed size with a title and a close button.
#pragma once

#include <memory>
#include <string>

#include "platform/Windows.h"
#include "platform/qt/windows/ContentHost.h"

namespace zephrine {

class QtWindow final : public Window {
public:
    QtWindow(const std::string& title, Size contentSize);

    void setContentView(View& view) override;
    [[nodiscard]] bool isVisible() const override;
    void center() override;
    void makeKeyAndOrderFront() override;

private:
    std::unique_ptr<QWidget> surface_;
    ContentHost& content_;
};

}  // namespace zephrine
