// SPDX-License-Identifier: MIT
// AMD cards: their firmware measures the load itself, and the driver passes it on.
#pragma once

#include "platform/linux/base/CounterFile.h"
#include "platform/linux/gpu/GPUSource.h"

namespace zephrine {

class AmdgpuSource final : public GPUSource {
public:
    explicit AmdgpuSource(const std::string& cardPath);

    std::optional<double> utilization() override;

private:
    CounterFile busyPercent_;
};

}  // namespace zephrine
