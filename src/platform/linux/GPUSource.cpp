// SPDX-License-Identifier: MIT
// The one place where a driver's name leads to its source.
#include "platform/linux/GPUSource.h"

#include "platform/linux/AmdgpuSource.h"

namespace zephrine {

std::unique_ptr<GPUSource> makeGPUSource(std::string_view driver, const std::string& cardPath) {
    if (driver == "amdgpu") {
        return std::make_unique<AmdgpuSource>(cardPath);
    }
    return nullptr;
}

}  // namespace zephrine
