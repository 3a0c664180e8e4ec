// SPDX-License-Identifier: MIT
// The platform that this program is linked with.
#include "platform/qt/QtPlatform.h"

#include <utility>

namespace zephrine {

std::shared_ptr<ProcessTable> QtPlatform::processTable() {
    if (!processTable_ || processTable_.use_count() > 1) {
        processTable_ =
            std::make_shared<LinuxProcessTable>("/proc", processCPUTime, commandLineReaders_);
    }
    return processTable_;
}

std::variant<Application*, NoDesktop, RunsAlready> QtPlatform::sharedApplication() {
    if (!application_) {
        auto connection = QtApplication::connect(arguments_, preferenceStore());
        if (auto* none = std::get_if<NoDesktop>(&connection)) {
            return std::move(*none);
        }
        if (std::holds_alternative<RunsAlready>(connection)) {
            return RunsAlready{};
        }
        application_ = std::get<std::unique_ptr<QtApplication>>(std::move(connection));
    }
    return application_.get();
}

std::unique_ptr<Platform> makePlatform(std::vector<std::string> arguments) {
    return std::make_unique<QtPlatform>(std::move(arguments));
}

}  // namespace zephrine
