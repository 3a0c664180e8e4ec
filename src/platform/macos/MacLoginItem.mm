// SPDX-License-Identifier: MIT
// The seam's numbers are the platform's, so that a value added by a later system passes through.
#include "platform/macos/MacLoginItem.h"

#include "platform/macos/MacString.h"

#import <ServiceManagement/ServiceManagement.h>

namespace zephrine {

static_assert(static_cast<int>(LoginItemStatus::notRegistered) == SMAppServiceStatusNotRegistered);
static_assert(static_cast<int>(LoginItemStatus::enabled) == SMAppServiceStatusEnabled);
static_assert(static_cast<int>(LoginItemStatus::requiresApproval) ==
              SMAppServiceStatusRequiresApproval);
static_assert(static_cast<int>(LoginItemStatus::notFound) == SMAppServiceStatusNotFound);

LoginItemStatus MacLoginItem::status() const {
    return static_cast<LoginItemStatus>(SMAppService.mainAppService.status);
}

std::optional<std::string> MacLoginItem::registerItem() {
    // The result counts, not the error: one that was not filled in means nothing.
    NSError* error = nil;
    if ([SMAppService.mainAppService registerAndReturnError:&error]) {
        return std::nullopt;
    }
    return utf8String(error.localizedDescription);
}

std::optional<std::string> MacLoginItem::unregisterItem() {
    NSError* error = nil;
    if ([SMAppService.mainAppService unregisterAndReturnError:&error]) {
        return std::nullopt;
    }
    return utf8String(error.localizedDescription);
}

}  // namespace zephrine
