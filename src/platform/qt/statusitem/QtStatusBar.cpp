// SPDX-License-Identifier: MIT
// Makes items.
#include "platform/qt/statusitem/QtStatusBar.h"

#include <utility>

#include "platform/qt/statusitem/QtStatusItem.h"

namespace zephrine {

QtStatusBar::QtStatusBar(StatusItemServices services, QString busAddress,
                         std::chrono::milliseconds patience)
    : services_(std::move(services)), busAddress_(std::move(busAddress)), patience_(patience) {}

std::unique_ptr<StatusItem> QtStatusBar::statusItemWithLength(double length) {
    return std::make_unique<QtStatusItem>(length, services_, busAddress_, patience_);
}

}  // namespace zephrine
