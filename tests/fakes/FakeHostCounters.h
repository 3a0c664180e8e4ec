// SPDX-License-Identifier: MIT
// Counters that a test sets, with a record of the order in which they were read.
#pragma once

#include <string>
#include <vector>

#include "platform/HostCounters.h"

namespace zephrine {

class FakeHostCounters : public HostCounters {
public:
    std::optional<HostCPULoadInfo> ticks = HostCPULoadInfo{10, 10, 70, 10};
    std::optional<std::uint64_t> pageSize = 4096;
    std::optional<vm_statistics64> statistics = vm_statistics64{};
    std::optional<std::int32_t> pressureLevel = 1;
    std::uint64_t memory = 16ULL << 30U;
    double uptime = 1000;
    int processors = 4;
    std::vector<std::string> calls;  ///< the counters' names, in the order of reading

    std::optional<HostCPULoadInfo> host_statistics() override {
        calls.emplace_back("host_statistics");
        return ticks;
    }
    std::optional<std::uint64_t> host_page_size() override {
        calls.emplace_back("host_page_size");
        return pageSize;
    }
    std::optional<vm_statistics64> host_statistics64() override {
        calls.emplace_back("host_statistics64");
        return statistics;
    }
    std::optional<std::int32_t> memorystatus_vm_pressure_level() override {
        calls.emplace_back("memorystatus_vm_pressure_level");
        return pressureLevel;
    }
    std::uint64_t physicalMemory() override {
        calls.emplace_back("physicalMemory");
        return memory;
    }
    double systemUptime() override { return uptime; }
    int activeProcessorCount() override { return processors; }

    /// Adds `busy` and `idle` ticks, as if that time had passed.
    void advance(std::uint32_t busy, std::uint32_t idle) {
        (*ticks)[CPU_STATE_USER] += busy;
        (*ticks)[CPU_STATE_IDLE] += idle;
    }

    /// Sets the page counts so that `bytes` are in use.
    void setUsed(std::uint64_t bytes) {
        statistics = vm_statistics64{.active_count = static_cast<std::uint32_t>(bytes / 4096)};
    }
};

}  // namespace zephrine
