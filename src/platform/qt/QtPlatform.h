// SPDX-License-Identifier: MIT
// The platform of the Linux desktop: counters and services of the system, windows by Qt. Each is
// made when it is first asked for.
#pragma once

#include <atomic>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "platform/Platform.h"
#include "platform/linux/counters/LinuxHostCounters.h"
#include "platform/linux/formatting/LinuxFormatting.h"
#include "platform/linux/gpu/LinuxGPURegistry.h"
#include "platform/linux/login/AutostartLoginItem.h"
#include "platform/linux/preferences/JSONPreferenceStore.h"
#include "platform/linux/processes/LinuxProcessTable.h"
#include "platform/qt/QtApplication.h"

namespace zephrine {

class QtPlatform final : public Platform {
public:
    /// `arguments` are the program's, the path that it was started by first.
    explicit QtPlatform(std::vector<std::string> arguments) : arguments_(std::move(arguments)) {}

    HostCounters& hostCounters() override { return made(hostCounters_); }
    GPURegistry& gpuRegistry() override { return made(gpuRegistry_); }
    std::shared_ptr<ProcessTable> processTable() override;
    PreferenceStore& preferenceStore() override { return made(preferences_); }
    LoginItem& loginItem() override { return made(loginItem_); }
    Formatting& formatting() override { return made(formatting_); }

    std::variant<Application*, NoDesktop, RunsAlready> sharedApplication() override;

private:
    template <typename Service>
    static Service& made(std::optional<Service>& service) {
        return service ? *service : service.emplace();
    }

    std::vector<std::string> arguments_;
    std::optional<LinuxHostCounters> hostCounters_;
    std::optional<LinuxGPURegistry> gpuRegistry_;
    std::shared_ptr<LinuxProcessTable> processTable_;
    CommandLineReaders commandLineReaders_ = std::make_shared<std::atomic<int>>(0);
    std::optional<JSONPreferenceStore> preferences_;
    std::optional<AutostartLoginItem> loginItem_;
    std::optional<LinuxFormatting> formatting_;
    std::unique_ptr<QtApplication> application_;  // last: it uses the services
};

}  // namespace zephrine
