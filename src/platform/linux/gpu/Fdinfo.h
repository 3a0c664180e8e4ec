// SPDX-License-Identifier: MIT
// What a process's open graphics device tells about its use: Documentation/gpu/drm-usage-stats.rst.
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

namespace zephrine {

/// How long one engine, or group of equal engines, worked for one client. `busy` and `total` count
/// in one unit, the engine's own or nanoseconds.
struct EngineUsage {
    std::string_view name;
    std::uint64_t busy = 0;
    std::uint64_t total = 0;
    std::uint64_t capacity = 1;  ///< how many engines the group has
    bool operator==(const EngineUsage&) const = default;
};

/// One opening of a device. It may be reached by several descriptors of several processes.
struct ClientUsage {
    std::string_view id;      ///< unique for the device
    std::string_view device;  ///< its PCI address; empty for devices of other buses
    std::vector<EngineUsage> engines;
};

/// The parts of /proc/PID/fdinfo/N that count, read when a clock that never steps back showed
/// `nanoseconds`. They point into `text`. Absent when the file is no graphics device's.
std::optional<ClientUsage> parseFdinfo(std::string_view text, std::uint64_t nanoseconds);

}  // namespace zephrine
