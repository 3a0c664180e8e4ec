// SPDX-License-Identifier: MIT
// The counters from Mach's host port, sysctl and the process information object.
#pragma once

#include "platform/HostCounters.h"

namespace zephrine {

class MacHostCounters final : public HostCounters {
public:
    MacHostCounters();
    ~MacHostCounters() override;
    MacHostCounters(const MacHostCounters&) = delete;
    MacHostCounters& operator=(const MacHostCounters&) = delete;

    std::optional<HostCPULoadInfo> host_statistics() override;
    std::optional<std::uint64_t> host_page_size() override;
    std::optional<vm_statistics64> host_statistics64() override;
    std::optional<std::int32_t> memorystatus_vm_pressure_level() override;
    std::uint64_t physicalMemory() override;
    double systemUptime() override;
    int activeProcessorCount() override;

private:
    std::uint32_t host_;  ///< the name of a port right: every look-up adds one, to be given back
};

}  // namespace zephrine
