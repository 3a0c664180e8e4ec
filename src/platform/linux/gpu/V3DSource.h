// SPDX-License-Identifier: MIT
// Broadcom's VideoCore in the Raspberry Pi: the driver adds up how long each of its queues ran.
#pragma once

#include <array>
#include <string>

#include "platform/linux/base/CounterFile.h"
#include "platform/linux/gpu/BusyRate.h"
#include "platform/linux/gpu/GPUSource.h"

namespace zephrine {

class V3DSource final : public GPUSource {
public:
    /// For the card whose device's folder is `device`.
    explicit V3DSource(const std::string& device);

    /// Of the queue that is busiest.
    std::optional<double> utilization() override;

private:
    static constexpr std::size_t kMostQueues = 8;

    CounterFile stats_;
    std::array<BusyRate, kMostQueues> rates_;  ///< in the file's order, which never changes
};

}  // namespace zephrine
