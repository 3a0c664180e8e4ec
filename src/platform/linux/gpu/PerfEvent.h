// SPDX-License-Identifier: MIT
// A kernel counter of one device, by perf_event_open(2).
#pragma once

#include <cstdint>
#include <functional>

#include "platform/linux/base/FileDescriptor.h"

namespace zephrine {

/// Opens the counter `config` of the device with the perf type `type`, counted on processor `cpu`.
/// Each read(2) of the descriptor gives two 64-bit words: the count, and the nanoseconds that it
/// has been counted for. None when there is no such counter or this user may not see it
/// (/proc/sys/kernel/perf_event_paranoid above 0, as most distributions have it).
FileDescriptor openPerfEvent(std::uint32_t type, std::uint64_t config, int cpu);

using PerfOpener = std::function<FileDescriptor(std::uint32_t, std::uint64_t, int)>;

}  // namespace zephrine
