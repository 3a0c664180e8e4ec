// SPDX-License-Identifier: MIT
// The machine-wide counters from /proc. One refresh reads each file once: the memory statistics and
// the pressure level share one reading of /proc/meminfo.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "platform/HostCounters.h"
#include "platform/linux/base/CounterFile.h"
#include "platform/linux/base/MonotonicClock.h"
#include "platform/linux/counters/Meminfo.h"
#include "platform/linux/counters/MemoryExtrasReader.h"
#include "platform/linux/counters/PressureLevel.h"
#include "platform/linux/counters/TickAccumulator.h"

namespace zephrine {

class LinuxHostCounters final : public HostCounters {
public:
    /// `proc` and `sys` are where those file systems are mounted; `clock` is `systemUptime`.
    explicit LinuxHostCounters(const std::string& proc = "/proc", const std::string& sys = "/sys",
                               SecondsClock clock = monotonicSeconds);

    std::optional<HostCPULoadInfo> host_statistics() override;
    std::optional<std::uint64_t> host_page_size() override;
    std::optional<vm_statistics64> host_statistics64() override;
    std::optional<std::int32_t> memorystatus_vm_pressure_level() override;
    std::uint64_t physicalMemory() override;
    double systemUptime() override;
    int activeProcessorCount() override;

private:
    std::optional<Meminfo> readMeminfo();

    SecondsClock clock_;
    CounterFile stat_;
    CounterFile meminfo_;
    CounterFile pressure_;
    MemoryExtrasReader extras_;
    TickAccumulator ticks_;
    PressureLevel level_;
    /// What `host_statistics64` read, until the pressure level has used it.
    std::optional<Meminfo> freshMeminfo_;
    std::vector<char> processorText_;
};

}  // namespace zephrine
