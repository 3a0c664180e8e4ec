// SPDX-License-Identifier: MIT
// An ordinary window of fixed size with a title and a close button.
#pragma once

#include <memory>
#include <string>

#include "platform/Windows.h"

namespace zephrine {

class QtWindow final : public Window {
public:
    QtWindow(const std::string& title, Size contentSize);
    ~QtWindow() override;
    QtWindow(const QtWindow&) = delete;
    QtWindow& operator=(const QtWindow&) = delete;

    void setContentView(View& view) override;
    [[nodiscard]] bool isVisible() const override;
    void center() override;
    void makeKeyAndOrderFront() override;

private:
    class Surface;

    std::unique_ptr<Surface> surface_;
};

}  // namespace zephrine
