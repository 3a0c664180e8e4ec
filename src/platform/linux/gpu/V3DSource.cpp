// SPDX-License-Identifier: MIT
// gpu_stats: a line of titles ("queue timestamp jobs runtime"), then one line for each queue, times
// in nanoseconds (Documentation/gpu/v3d.rst, drivers/gpu/drm/v3d/v3d_sysfs.c). Kept in memory by
// the driver: reading it does not touch the hardware.
#include "platform/linux/gpu/V3DSource.h"

#include <algorithm>
#include <cstddef>

#include "platform/linux/base/TextScan.h"

namespace zephrine {

V3DSource::V3DSource(const std::string& device) : stats_(device + "/gpu_stats") {}

std::optional<double> V3DSource::utilization() {
    std::array<char, 1024> buffer{};
    auto text = stats_.read(buffer);
    if (!text || !takeLine(*text)) {
        return std::nullopt;
    }
    std::optional<double> busiest;
    for (BusyRate& rate : rates_) {
        auto line = takeLine(*text);
        if (!line) {
            break;
        }
        const std::string_view queue = takeWord(*line);
        const auto timestamp = parseUnsigned(takeWord(*line));
        takeWord(*line);
        const auto runtime = parseUnsigned(takeWord(*line));
        if (!timestamp || !runtime) {
            return std::nullopt;
        }
        const auto percent = rate.next(*runtime, *timestamp);
        const bool runsOnGPU = queue != "cpu";
        if (percent && runsOnGPU) {
            busiest = std::max(busiest.value_or(0), *percent);
        }
    }
    return busiest ? plausiblePercent(*busiest) : std::nullopt;
}

}  // namespace zephrine
