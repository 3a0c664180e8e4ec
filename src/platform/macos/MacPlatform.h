// SPDX-License-Identifier: MIT
// The Mac's side of the seam, each service made at its first use.
#pragma once

#include <memory>

#include "platform/Platform.h"

namespace zephrine {

class MacPlatform final : public Platform {
public:
    MacPlatform();
    ~MacPlatform() override;
    MacPlatform(const MacPlatform&) = delete;
    MacPlatform& operator=(const MacPlatform&) = delete;

    HostCounters& hostCounters() override;
    GPURegistry& gpuRegistry() override;
    std::shared_ptr<ProcessTable> processTable() override;
    PreferenceStore& preferenceStore() override;
    LoginItem& loginItem() override;
    Formatting& formatting() override;
    std::variant<Application*, NoDesktop, RunsAlready> sharedApplication() override;

private:
    std::unique_ptr<HostCounters> hostCounters_;
    std::unique_ptr<GPURegistry> gpuRegistry_;
    std::shared_ptr<ProcessTable> processTable_;
    std::unique_ptr<PreferenceStore> preferenceStore_;
    std::unique_ptr<LoginItem> loginItem_;
    std::unique_ptr<Formatting> formatting_;
    std::unique_ptr<Application> application_;
};

}  // namespace zephrine
