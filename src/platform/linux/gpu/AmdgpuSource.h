// SPDX-License-Identifier: MIT
// AMD cards: their firmware measures the load itself, and the driver passes it on.
#pragma once

#include <string>

#include "platform/linux/base/CounterFile.h"
#include "platform/linux/gpu/GPUSource.h"

namespace zephrine {

class AmdgpuSource final : public GPUSource {
public:
    /// For the card whose device's folder is `device`.
    explicit AmdgpuSource(const std::string& device);

    std::optional<double> utilization() override;

private:
    CounterFile busyPercent_;
};

}  // namespace zephrine
