// SPDX-License-Identifier: MIT
// The platform that this program is linked with.
#include "platform/qt/QtPlatform.h"

namespace zephrine {

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
