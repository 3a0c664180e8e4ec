// SPDX-License-Identifier: MIT
// A thin line between groups.
#pragma once

#include "platform/qt/theme/SystemAppearance.h"
#include "platform/qt/widgets/QtView.h"

namespace zephrine {

class QtSeparator final : public QtView {
public:
    /// `appearance` outlives the separator.
    explicit QtSeparator(const SystemAppearance& appearance);
};

}  // namespace zephrine
