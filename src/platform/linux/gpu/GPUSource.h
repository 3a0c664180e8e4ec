// SPDX-License-Identifier: MIT
// How busy one graphics card is, by its driver's own account. Each driver has its own small class;
// `makeGPUSource` knows them all.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace zephrine {

class GPUSource {
public:
    virtual ~GPUSource() = default;

    /// Percent, as the driver gives it, not checked; absent when it cannot be read now. Asked only
    /// while the card is awake.
    virtual std::optional<double> utilization() = 0;
};

/// The source for a card at `cardPath` (/sys/class/drm/cardN) that `driver` drives; null when that
/// driver publishes nothing that this program can read.
std::unique_ptr<GPUSource> makeGPUSource(std::string_view driver, const std::string& cardPath);

}  // namespace zephrine
