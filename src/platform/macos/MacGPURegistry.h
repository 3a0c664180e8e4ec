// SPDX-License-Identifier: MIT
// The accelerator services of the IOKit registry.
#pragma once

#include "platform/GPURegistry.h"

namespace zephrine {

class MacGPURegistry final : public GPURegistry {
public:
    std::optional<std::vector<GPUService>> IOServiceGetMatchingServices(
        std::string_view name) override;
    const Property* IORegistryEntryCreateCFProperty(GPUService service,
                                                    std::string_view key) override;
    void IOObjectRelease(GPUService service) override;

private:
    std::optional<Property> property_;  ///< what the last look-up found
};

}  // namespace zephrine
