// SPDX-License-Identifier: MIT
// The platform that a Mac's program is linked with.
#include "platform/macos/MacPlatform.h"

#include "platform/macos/MacApplication.h"
#include "platform/macos/MacFormatting.h"
#include "platform/macos/MacGPURegistry.h"
#include "platform/macos/MacHostCounters.h"
#include "platform/macos/MacLoginItem.h"
#include "platform/macos/MacPreferenceStore.h"
#include "platform/macos/MacProcessTable.h"

#import <CoreGraphics/CoreGraphics.h>

namespace zephrine {

namespace {

template <typename Made, typename Service>
Service& firstUse(std::unique_ptr<Service>& service) {
    if (!service) {
        service = std::make_unique<Made>();
    }
    return *service;
}

/// Without one, over ssh for instance, making the application object would end the process.
bool hasGraphicalSession() {
    const CFDictionaryRef session = CGSessionCopyCurrentDictionary();
    if (session == nullptr) {
        return false;
    }
    CFRelease(session);
    return true;
}

}  // namespace

MacPlatform::MacPlatform() = default;
MacPlatform::~MacPlatform() = default;

HostCounters& MacPlatform::hostCounters() {
    return firstUse<MacHostCounters>(hostCounters_);
}

GPURegistry& MacPlatform::gpuRegistry() {
    return firstUse<MacGPURegistry>(gpuRegistry_);
}

std::shared_ptr<ProcessTable> MacPlatform::processTable() {
    if (!processTable_ || processTable_.use_count() > 1) {
        processTable_ = std::make_shared<MacProcessTable>();
    }
    return processTable_;
}

PreferenceStore& MacPlatform::preferenceStore() {
    return firstUse<MacPreferenceStore>(preferenceStore_);
}

LoginItem& MacPlatform::loginItem() {
    return firstUse<MacLoginItem>(loginItem_);
}

Formatting& MacPlatform::formatting() {
    return firstUse<MacFormatting>(formatting_);
}

std::variant<Application*, NoDesktop, RunsAlready> MacPlatform::sharedApplication() {
    if (!application_ && !hasGraphicalSession()) {
        return NoDesktop{"there is no graphical session to connect to"};
    }
    return &firstUse<MacApplication>(application_);
}

std::unique_ptr<Platform> makePlatform(std::vector<std::string> /*arguments*/) {
    return std::make_unique<MacPlatform>();
}

}  // namespace zephrine
