// SPDX-License-Identifier: MIT
// The size of ZFS's cache, which /proc/meminfo counts as the kernel's own memory.
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace zephrine {

/// Bytes that the cache gives back when they are needed: what it holds beyond its minimum. Absent
/// when the text lacks either figure.
std::optional<std::uint64_t> parseReclaimableArc(std::string_view arcstats);

}  // namespace zephrine
