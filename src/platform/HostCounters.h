// SPDX-License-Identifier: MIT
// The machine-wide counters: processor ticks, virtual-memory statistics, memory pressure, uptime.
//
// Contract. Main thread only, and quick: the whole of one refresh reads each counter once. A
// counter that could not be read is absent (nullopt), never zero and never an older value; no
// operation throws or waits. Names are those of the operations that give these figures on Mach.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>

namespace zephrine {

/// Indices into the four counters of `host_statistics`.
enum CPUState : std::size_t { CPU_STATE_USER, CPU_STATE_SYSTEM, CPU_STATE_IDLE, CPU_STATE_NICE };

/// Cumulative ticks since boot, summed over all processors. Each counter runs freely and wraps
/// round at 2^32; between two readings no counter ever steps back.
using HostCPULoadInfo = std::array<std::uint32_t, 4>;

/// Page counts of the whole machine, in units of `host_page_size`.
struct vm_statistics64 {  // NOLINT(readability-identifier-naming): the platform's name
    std::uint32_t active_count = 0;
    std::uint32_t inactive_count = 0;
    std::uint32_t wire_count = 0;
    std::uint32_t compressor_page_count = 0;
    std::uint32_t purgeable_count = 0;
    std::uint32_t external_page_count = 0;
};

class HostCounters {
public:
    virtual ~HostCounters() = default;

    virtual std::optional<HostCPULoadInfo> host_statistics() = 0;

    /// Bytes in a page.
    virtual std::optional<std::uint64_t> host_page_size() = 0;

    virtual std::optional<vm_statistics64> host_statistics64() = 0;

    /// The kernel's level number, not yet checked: 1 normal, 2 warning, 4 critical.
    virtual std::optional<std::int32_t> memorystatus_vm_pressure_level() = 0;

    /// Bytes of physical memory; 0 when unknown.
    virtual std::uint64_t physicalMemory() = 0;

    /// Seconds since boot, time asleep not counted; monotonic.
    virtual double systemUptime() = 0;

    /// Processors that are online now; 0 when unknown.
    virtual int activeProcessorCount() = 0;
};

}  // namespace zephrine
