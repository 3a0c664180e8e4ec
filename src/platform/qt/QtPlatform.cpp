// SPDX-License-Identifier: MIT
// The platform that this program is linked with.
#include "platform/qt/QtPlatform.h"

namespace zephrine {

std::shared_ptr<ProcessTable> QtPlatform::processTable() {
    if (!processTable_ || processTable_.use_count() > 1) {
        processTable_ =
            std::make_shared<LinuxProcessTable>("/proc", processCPUTime, commandLineReaders_);
    }
    return processTable_;
}

Application* QtPlatform::sharedApplication(std::string& whyNot) {
    if (!application_) {
        application_ = QtApplication::connect(arguments_, preferenceStore(), whyNot);
    }
    return application_.get();
}

std::unique_ptr<Platform> makePlatform(int& argc, char** argv) {
    return std::make_unique<QtPlatform>(std::vector<std::string>(argv, argv + argc));
}

}  // namespace zephrine
