// SPDX-License-Identifier: MIT
// The one place where a driver's name leads to its source.
#include "platform/linux/gpu/GPUSource.h"

#include "platform/linux/gpu/AmdgpuSource.h"

namespace zephrine {

std::unique_ptr<GPUSource> makeGPUSource(std::string_view driver, const std::string& cardPath) {
    if (driver == "amdgpu") {
        return std::make_unique<AmdgpuSource>(cardPath);
    }
    return nullptr;
}

}  // namespace zephrine
