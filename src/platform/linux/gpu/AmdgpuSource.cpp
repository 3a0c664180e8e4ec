// SPDX-License-Identifier: MIT
// gpu_busy_percent: Documentation/gpu/amdgpu/thermal.rst, "GPU SysFs Power State Interfaces". It
// fails with EPERM while the card is being reset or suspended, with EOPNOTSUPP on cards
// without the sensor, and with ENODEV after the card was removed.
#include "platform/linux/gpu/AmdgpuSource.h"

#include <array>
#include <charconv>
#include <cstdint>

#include "platform/linux/base/TextScan.h"

namespace zephrine {

AmdgpuSource::AmdgpuSource(const std::string& device)
    : busyPercent_(device + "/gpu_busy_percent") {}

std::optional<double> AmdgpuSource::utilization() {
    std::array<char, 64> buffer{};
    auto text = busyPercent_.read(buffer);
    const auto line = text ? takeLine(*text) : std::nullopt;
    if (!line) {
        return std::nullopt;
    }
    std::int64_t value = 0;
    const char* const end = line->data() + line->size();
    const auto [rest, error] = std::from_chars(line->data(), end, value);
    if (error != std::errc() || rest != end) {
        return std::nullopt;
    }
    return static_cast<double>(value);
}

}  // namespace zephrine
