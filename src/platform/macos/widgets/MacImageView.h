// SPDX-License-Identifier: MIT
// An image from the application's bundle, or the application's icon.
#pragma once

#include "platform/macos/widgets/MacView.h"

namespace zephrine {

class MacImageView final : public MacView, public ImageView {
public:
    MacImageView();

    bool setImageNamed(const std::string& name) override;
    void setApplicationIcon() override;

private:
    explicit MacImageView(NSImageView* view);

    NSImageView* imageView_;
};

}  // namespace zephrine
